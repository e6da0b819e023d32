// The program's own main window with a plan in it, on widgets.
#pragma once

#include "dialogs/dropped_file.h"
#include "program/assemble.h"
#include "program/event_boundary.h"
#include "tests/desktop/sample_files.h"
#include "tests/desktop/test_window.h"

#include <memory>

namespace veldrin {

class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() {
    stage.servesTimers = false;
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.RAT", kSampleList);
    simulated.files.AddFile("C:\\VELDRIN\\DAT\\A.nx4", kSamplePlan);
    stage.input.Serve(program.get());
    StartProgram(*program, "");
    simulated.clock.Advance(100, [&](TimerControl& timer) { RunEvent(*program, [&] { timer.Timer(); }); });
    RunEvent(*program, [&] { OpenDroppedFile(*program, "C:\\VELDRIN\\DAT\\A.nx4"); });
    windows.Settle();
    QCoreApplication::processEvents();
  }

  ~MainWindowTest() override { TakeDown(simulated, stage, windows); }

  FormWidget& Widget() { return *windows.FormOf(program->form2); }
  QWidget& WidgetOf(const Control& control) { return *Widget().ViewOf(control)->Widget(); }

  SimulatedMachine simulated;
  Stage stage;
  DesktopWindows windows{stage};
  ScriptWindows scriptWindows{simulated.windows, windows};
  Machine machine = MachineWith(simulated, scriptWindows);
  std::unique_ptr<Program> program = AssembleProgram(machine);
};

}  // namespace veldrin
