#include "mainwin/gear_panel/gear_panel.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace veldrin {
namespace {

/// The events that the panel's units claim, one a line in alphabetical order. Elements of an array count as
/// one.
constexpr char kClaimed[] = R"(Command1.Click
Command10.Click
Command11.Click
Command2.MouseUp
Command3.Click
Command4.MouseUp
Command5.Click
Command6.KeyDown
Command7.Click
Command8.Click
Command9.Click
Grid1.LostFocus
Grid1.Pick
Grid2.LostFocus
Grid2.Pick
HScroll1.Change
HScroll2.Change
Label12.Change
Label12.Click
Label34.DblClick
Label6.Change
Label8.Change
Label8.Click
Option1.Click
Picture21.DblClick
Picture21.MouseUp
Picture28.MouseUp
Picture9.DblClick
Spin1.SpinDown
Spin1.SpinUp
Spin3.SpinDown
Spin3.SpinUp
Spin4.SpinDown
Spin4.SpinUp
Spin5.SpinDown
Spin5.SpinUp
Spin6.SpinDown
Spin6.SpinUp
SpinButton1.SpinDown
SpinButton1.SpinUp
SpinButton2.SpinDown
SpinButton2.SpinUp
Text1.Change
Text1.DblClick
Text1.KeyDown
Text1.LostFocus
Text2.DblClick
Text2.KeyDown
Text2.LostFocus
Text3.Change
Text3.DblClick
Text3.KeyDown
Text3.LostFocus
Text4.DblClick
Text4.KeyDown
Text4.LostFocus
Text6.Change
f_calc.Click
f_comp.Click
f_mode.Click
f_rest.Click
menu_data_load.Click
menu_data_ref.Click
menu_list_load.Click
menu_qr.Click
menu_save.Click
)";

TEST(GearPanel, ClaimsItsEventsOnce) {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  AttachGearPanel(program);
  std::set<std::string> claimed;
  for (const Control* control : program.form2.controls) {
    for (const Event* event : control->events) {
      EXPECT_LE(event->Claims(), 1) << control->FullName() << '.' << event->Name();
      if (event->Claims() > 0) claimed.insert(control->name + "." + event->Name());
    }
  }
  std::string lines;
  for (const std::string& event : claimed) lines += event + "\n";
  EXPECT_EQ(lines, kClaimed);
  simulated.windows.Forget();
}

}  // namespace
}  // namespace veldrin
