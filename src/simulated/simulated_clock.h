// The clock of the simulated machine. It stands still until it is told to advance, and then fires the timers
// of the loaded windows in the order of their time; at the same time, in the order in which their windows
// were loaded, then in the order of the window.
//
// A timer counts from the moment it is enabled or gets another interval, and from each of its events on; with
// an interval of 0 it never fires.
#pragma once

#include "view/window.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace veldrin {

class SimulatedClock {
 public:
  /// Fires a timer's event, at the event boundary.
  using RunEvent = std::function<void(TimerControl& timer)>;

  std::int64_t Now() const { return now_; }

  void WindowLoaded(Window& window);
  void WindowUnloaded(const Window& window);
  /// A slot of a timer changed.
  void TimerChanged(TimerControl& timer, std::string_view slot);
  /// Forgets every timer, as when the process is gone; a running Advance fires nothing any more.
  void Forget() { timers_.clear(); }

  /// Lets this many milliseconds pass. An event may advance the clock further, in the loop of a modal window;
  /// what passes there passes here too. Whatever `runEvent` throws passes through and leaves the clock at
  /// that event.
  void Advance(std::int64_t milliseconds, const RunEvent& runEvent);
  /// Lets the rest of the innermost Advance pass that is under way, with its `runEvent`; nothing without one.
  /// A modal window that an event opens begins so: time does not wait for it to hide.
  void FinishAdvance();

 private:
  struct Counting {
    TimerControl* timer;
    /// When it fires, kNever while it does not count.
    std::int64_t due;
  };

  static constexpr std::int64_t kNever = INT64_MAX;

  void Restart(Counting& counting) const;
  /// The timer that fires first, not after `end`; null for none.
  Counting* NextDue(std::int64_t end);

  std::int64_t now_ = 0;
  /// In the order of loading and of the windows.
  std::vector<Counting> timers_;
  /// Of the innermost Advance.
  const RunEvent* runEvent_ = nullptr;
  std::int64_t end_ = 0;
};

}  // namespace veldrin
