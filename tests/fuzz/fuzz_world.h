// What an input of a fuzzer is put before: the program on the simulated machine. It may refuse the input, and
// it may end by a fault that its rules state; everything else is a finding.
#pragma once

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "simulated/simulated_machine.h"
#include "tests/safety/netted_program.h"
#include "view/user_input.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

/// What libFuzzer calls, and replay.cpp.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace veldrin {

inline std::string InputText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

[[noreturn]] inline void Finding(const std::string& what) {
  std::fprintf(stderr, "finding: %s\n", what.c_str());
  std::abort();
}

inline void Require(bool holds, const char* what) {
  if (!holds) Finding(what);
}

class FuzzWorld {
 public:
  FuzzWorld() { AddSampleFiles(simulated.files); }
  ~FuzzWorld() { simulated.windows.Forget(); }
  FuzzWorld(const FuzzWorld&) = delete;
  FuzzWorld& operator=(const FuzzWorld&) = delete;

  /// Starts the program, and waits until the main window is up.
  void Start(const std::string& commandLine) {
    program = AssembleProgram(simulated.machine);
    StartProgram(*program, commandLine);
    Wait();
  }
  void Wait() {
    for (const int milliseconds : {100, 1200}) {
      simulated.clock.Advance(milliseconds, [this](TimerControl& timer) { Do([&] { timer.Timer(); }); });
    }
  }
  void Do(const std::function<void()>& event) { RunEvent(*program, event); }
  void Click(Control& control) {
    Do([&] { user::Click(control); });
  }

  /// Goes through all that shows the machine and its plan.
  void LookAtThePlan() {
    Form2& form2 = program->form2;
    Click(form2.Command2);
    for (const bool up : {true, false}) {
      for (int gear = 1; gear <= kGears; ++gear) Do([&] { user::Spin(form2.Spin6[gear], up); });
      Do([&] { user::Spin(form2.Spin4, up); });
      Do([&] { user::Spin(form2.Spin5, up); });
    }
    Click(form2.menu_comb);
    Click(form2.Command7);
  }

  /// A fault has to be one of those that the rules know for such an input.
  void RequireStated(std::initializer_list<int> faults) const {
    const int fault = program->endFault;
    if (fault == 0 || std::find(faults.begin(), faults.end(), fault) != faults.end()) return;
    Finding("ended by fault " + std::to_string(fault));
  }

  SimulatedMachine simulated;
  std::unique_ptr<Program> program;
};

}  // namespace veldrin
