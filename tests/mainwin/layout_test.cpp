#include "mainwin/layout.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace veldrin {
namespace {

/// A program with scales and no plan, not started. Its window is 120 twips narrower and 690 lower inside.
struct Layout : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Form2& form2 = program.form2;

  Layout() {
    program.workspace.ModeWord = mode::kChange;
    program.workspace.MaxNe = 15000;
    program.workspace.MaxSpeed = 300;
    AttachLayout(program);
  }
  ~Layout() override { simulated.windows.Forget(); }
};

TEST_F(Layout, ClaimsTheResizeAlone) {
  std::vector<const Control*> controls(form2.controls.begin(), form2.controls.end());
  controls.push_back(&form2);
  for (const Control* control : controls) {
    for (const Event* event : control->events) {
      EXPECT_EQ(event->Claims(), event == &form2.Resize ? 1 : 0)
          << control->FullName() << '.' << event->Name();
    }
  }
}

TEST_F(Layout, FollowsTheHeight) {
  struct Case {
    float height;
    float remark;
    float panel;
    float shiftBar;
    float checkBar;
    float titles;
  };
  const Case cases[] = {
      {300, 1665, 6855, 6120, 6370, 6075},
      {7389, 1665, 6855, 6120, 6370, 6075},
      {7389.5F, 1665, 6855, 6120, 6370, 6075},
      {7390, 1665, 6850, 6115, 6365, 6070},
      {7390.5F, 1665.5F, 6850.5F, 6115.5F, 6365.5F, 6070.5F},
      {7391, 1666, 6851, 6116, 6366, 6071},
      {7400, 1675, 6860, 6125, 6375, 6080},
      {20000, 14275, 19460, 18725, 18975, 18680},
  };
  for (const Case& c : cases) {
    form2.SetSize(9720, c.height);
    EXPECT_EQ(form2.Text6.Height, c.remark) << c.height;
    EXPECT_EQ(form2.Picture19.Height, c.panel) << c.height;
    EXPECT_EQ(form2.HScroll1.Top, c.shiftBar) << c.height;
    EXPECT_EQ(form2.HScroll2.Top, c.checkBar) << c.height;
    EXPECT_EQ(form2.Picture29.Top, c.titles) << c.height;
    EXPECT_EQ(form2.Picture19.Width, 4605.0F) << c.height;
    EXPECT_EQ(form2.HScroll1.Width, 3135.0F) << c.height;
  }
}

TEST_F(Layout, FollowsTheWidth) {
  struct Case {
    float width;
    float bars;
    float panel;
    float fontSize;
  };
  const Case cases[] = {
      {1650, 3135, 4605, 8},          {9674, 3135, 4605, 8},   {9675, 3090, 4560, 8},
      {9676, 3091, 4561, 8},          {9720, 3135, 4605, 8},   {9790, 3205, 4675, 8},
      {9790.5F, 3205.5F, 4675.5F, 9}, {10340, 3755, 5225, 10}, {20000, 13415, 14885, 27},
  };
  for (const Case& c : cases) {
    form2.SetSize(c.width, 7400);
    EXPECT_EQ(form2.HScroll1.Width, c.bars) << c.width;
    EXPECT_EQ(form2.HScroll2.Width, c.bars) << c.width;
    EXPECT_EQ(form2.Picture19.Width, c.panel) << c.width;
    EXPECT_EQ(form2.Label18.FontSize, c.fontSize) << c.width;
    EXPECT_EQ(form2.Label22[4].FontSize, c.fontSize) << c.width;
    EXPECT_EQ(form2.Picture19.Height, 6860.0F) << c.width;
  }
}

TEST_F(Layout, CombinationPanelHasFourCases) {
  struct Case {
    float width;
    float height;
    float left;
    float top;
  };
  // Before each case the panel is set to 1 by 2.
  const Case cases[] = {
      {9675, 7392, 5606.25F, 1232}, {9675, 7389, 5606.25F, 2}, {9674, 7392, 1, 1232},
      {9674, 7389, 5625, 1125},     {13025, 9000, 6025, 1500},
  };
  for (const Case& c : cases) {
    form2.SetSize(12000, 8000);
    form2.Picture9.Left = 1;
    form2.Picture9.Top = 2;
    form2.SetSize(c.width, c.height);
    EXPECT_EQ(form2.Picture9.Left, c.left) << c.width << " by " << c.height;
    EXPECT_EQ(form2.Picture9.Top, c.top) << c.width << " by " << c.height;
  }
}

TEST_F(Layout, EmptiesThePictureOfTheChart) {
  form2.Picture21.Image = 2004;
  form2.Picture21.surface.Line(0, 0, 1, 1, kWhite);
  form2.SetSize(12000, 8000);
  EXPECT_EQ(form2.Picture21.Image, 0);
  EXPECT_TRUE(form2.Picture21.surface.Drawing().empty());
}

TEST_F(Layout, PlacesTicksInAscendingOrderThoseOfTheRevolutionsFirst) {
  std::ostringstream trace;
  simulated.windows.trace = &trace;
  form2.SetSize(12000, 8000);
  simulated.windows.trace = nullptr;
  std::vector<std::string> found;
  std::istringstream lines(trace.str());
  for (std::string line; std::getline(lines, line);) {
    const bool across = line.find("write Form2.Line4(") == 0 && line.find(").X1 ") != std::string::npos;
    const bool up = line.find("write Form2.Line3(") == 0 && line.find(").Y1 ") != std::string::npos;
    if (across || up) found.push_back(line.substr(0, line.find(").")));
  }
  std::vector<std::string> expected;
  for (int i = 0; i <= 24; ++i) expected.push_back("write Form2.Line4(" + std::to_string(i));
  for (int i = 0; i <= 18; ++i) expected.push_back("write Form2.Line3(" + std::to_string(i));
  EXPECT_EQ(found, expected);
}

TEST_F(Layout, WaitsWhileTheWindowIsSetUpAndForAPlan) {
  struct Case {
    const char* callerWord;
    const char* modeWord;
    bool placed;
  };
  const Case cases[] = {
      {caller::kForm1Timer, mode::kChange, false},
      {caller::kForm2Load, mode::kChange, false},
      {caller::kUser, mode::kBasing, false},
      {caller::kUser, mode::kChange, true},
      {caller::kForm1, mode::kSpeed, true},
      {caller::kUser, "basing", true},
      {"form2_load", mode::kRpm, true},
  };
  for (const Case& c : cases) {
    form2.Text6.Height = 1;
    program.workspace.CallerWord = c.callerWord;
    program.workspace.ModeWord = c.modeWord;
    Form2_Resize(program);
    EXPECT_EQ(form2.Text6.Height != 1.0F, c.placed) << c.callerWord << " / " << c.modeWord;
  }
}

TEST_F(Layout, ScaleOfZeroIsADivisionByZero) {
  program.workspace.MaxNe = 0;
  EXPECT_EQ(Guarded([&] { form2.SetSize(12000, 8000); }), kFaultDivisionByZero);
  program.workspace.MaxNe = 15000;
  program.workspace.MaxSpeed = 0;
  EXPECT_EQ(Guarded([&] { form2.SetSize(12000, 8100); }), kFaultDivisionByZero);
}

}  // namespace
}  // namespace veldrin
