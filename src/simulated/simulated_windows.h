// The windows of a program on the simulated machine: only their slots. Keeps which are loaded, serves their
// timers, runs modal windows by the loop it is given, and traces writes and events where somebody listens.
//
// A trace line is `write Form2.Label9(1).Caption " 98.4"` or `event Form2.Label12(3).Change`.
#pragma once

#include "platform/screen.h"
#include "simulated/simulated_clock.h"
#include "simulated/simulated_log.h"

#include <functional>
#include <iosfwd>
#include <vector>

namespace veldrin {

class SimulatedWindows : public Windows {
 public:
  SimulatedWindows(SimulatedClock& clock, SimulatedLog& log) : clock_(&clock), log_(&log) {}

  /// The loaded windows, in the order of loading.
  std::vector<Window*> loaded;
  /// Runs the events of a modal window until it hides; without one, modal windows return at once.
  std::function<void(Window&)> modalLoop;
  /// Where writes and events are told, also those that change nothing; null tells nobody.
  std::ostream* trace = nullptr;

  /// Forgets every window and timer: for a process that is gone, before its windows are.
  void Forget();

  void Loaded(Window& window) override;
  void Unloaded(Window& window) override;
  bool IsWatching() const override { return true; }
  void SlotWritten(Control& control, const char* slot, bool changed) override;
  void EventFired(Control& control, const Event& event) override;
  void ContentChanged(Control& /*control*/) override {}

  /// Lets a running Advance of the clock come to its end first, then runs the modal loop.
  void RunModal(Window& window) override;
  void Repaint(Control& /*control*/) override {}
  void Flash(Window& window) override;
  void SetEllipticRegion(Window& /*window*/, int /*left*/, int /*top*/, int /*right*/,
                         int /*bottom*/) override {}
  void StartDrag(Window& /*window*/) override {}

 private:
  SimulatedClock* clock_;
  SimulatedLog* log_;
};

}  // namespace veldrin
