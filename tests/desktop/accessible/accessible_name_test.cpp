#include "desktop/accessible/accessible_name.h"

#include "simulated/simulated_machine.h"
#include "workspace/program.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(AccessibleName, EveryControlOfTheMainWindowSaysWhatItIsFor) {
  SimulatedMachine simulated;
  Program program(simulated.machine);
  Form2& form2 = program.form2;
  const std::pair<const Control&, const char*> kNames[] = {{form2.Command2, "Mode"},
                                                           {form2.Spin4, "Primary"},
                                                           {form2.Spin5, "Final"},
                                                           {form2.Text1[6], "REQ 6"},
                                                           {form2.Text1[1], "REQ 1"},
                                                           {form2.Command1[3], "AUTO 3"},
                                                           {form2.Spin1[2], "- 2"},
                                                           {form2.Spin3[2], "+ 2"},
                                                           {form2.SpinButton1[4], "BASE_Ne 4"},
                                                           {form2.SpinButton2[4], "REQ_Ne 4"},
                                                           {form2.Spin6[3], "PLAN 3"},
                                                           {form2.Text3, "Tyre L"},
                                                           {form2.Text4, "Shift"},
                                                           {form2.Text2, "Check"},
                                                           {form2.HScroll1, "Shift Ne"},
                                                           {form2.HScroll2, "Check Ne"},
                                                           {form2.Text6, "Remark"},
                                                           {form2.Option1[0], "None"},
                                                           {form2.Option1[2], "Pri 2"},
                                                           {form2.Command1[0], "FULL AUTO"},
                                                           {form2.Label5, ""},
                                                           {form2.Picture21, ""}};
  for (const auto& [control, name] : kNames) {
    EXPECT_EQ(AccessibleName(control).toStdString(), name) << control.FullName();
  }
}

TEST(AccessibleName, WhatPicturesTellIsSaid) {
  SimulatedMachine simulated;
  Program program(simulated.machine);
  EXPECT_EQ(AccessibleName(program.form2.Picture28), "Print");
  const Form10& form10 = program.form10.Load();
  EXPECT_EQ(AccessibleName(form10.Picture_Close), "Close");
  EXPECT_EQ(AccessibleName(form10.Picture_Roll), "Roll up or down");
  EXPECT_EQ(AccessibleName(form10.Label_Ram), "") << "its text is its name";
}

TEST(AccessibleName, BoxesOfTheSettingsAreNamedByTheirCaptions) {
  SimulatedMachine simulated;
  Desk desk(simulated.machine);
  Form7 form7(desk);
  EXPECT_EQ(AccessibleName(form7.Text1[1]).toStdString(), "チェック　　回転数");
}

}  // namespace
}  // namespace veldrin
