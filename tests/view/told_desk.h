// A desk whose machine keeps, line by line and in order, all that the view tells it.
#pragma once

#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "view/control_array.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>

namespace veldrin {

/// The simulated windows, with loading, contents and modal loops in their trace as well: `loaded Form`,
/// `unloaded Form`, `content Form.Picture1`, `modal Form`.
struct TellingWindows : SimulatedWindows {
  explicit TellingWindows(SimulatedMachine& machine) : SimulatedWindows(machine.clock, machine.log) {
    trace = &lines;
  }

  std::ostringstream lines;
  bool tellsContent = false;
  /// Looks at what is there at the moment when a changed content is told.
  std::function<void(Control&)> lookAtContent;

  void Loaded(Window& window) override {
    lines << "loaded " << window.name << "\n";
    SimulatedWindows::Loaded(window);
  }
  void Unloaded(Window& window) override {
    lines << "unloaded " << window.name << "\n";
    SimulatedWindows::Unloaded(window);
  }
  void ContentChanged(Control& control) override {
    if (tellsContent) lines << "content " << control.FullName() << "\n";
    if (lookAtContent) lookAtContent(control);
  }
  void RunModal(Window& window) override {
    lines << "modal " << window.name << "\n";
    SimulatedWindows::RunModal(window);
  }
};

struct ToldDesk : testing::Test {
  SimulatedMachine simulated;
  TellingWindows windows{simulated};
  Machine machine = MachineWith(simulated, windows);
  Desk desk{machine};

  /// What was told since the last time, a line each.
  std::string Told() {
    std::string told = windows.lines.str();
    windows.lines.str("");
    return told;
  }
  void Forget() { Told(); }

  /// The fault that a statement raises; 0 for none.
  static int FaultOf(const std::function<void()>& statement) { return Guarded(statement); }
};

}  // namespace veldrin
