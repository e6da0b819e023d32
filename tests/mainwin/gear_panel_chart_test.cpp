#include "mainwin/gear_panel/gear_panel_chart.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

/// A program that is not started, with a plan and requests of their own in the workspace: 10 to 60 km/h and
/// 20 to 120 km/h in gears 1 to 6, at 10000 rev/min on a scale to 20000.
struct GearPanelChart : testing::Test {
  GearPanelChart() {
    workspace.ModeWord = mode::kChange;
    workspace.ShiftNe = 10000;
    workspace.ReferenceNe = 10000;
    workspace.MaxNe = 20000;
    workspace.MaxSpeed = 300;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.SpeedNow[gear] = 10.0F * static_cast<float>(gear);
      workspace.SpeedRequest[gear] = 20.0F * static_cast<float>(gear);
      workspace.SpeedBaseline[gear] = 30.0F * static_cast<float>(gear);
    }
  }
  ~GearPanelChart() override { simulated.windows.Forget(); }

  /// Speed at the right end of the first ray drawn.
  double FirstRay() const {
    return std::get<LinePrimitive>(program.form2.Picture21.surface.Drawing().at(0).shape).y2;
  }

  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
};

TEST_F(GearPanelChart, IsRedrawnAsThePlan) {
  RedrawChart(program);
  EXPECT_EQ(FirstRay(), 20);
}

TEST_F(GearPanelChart, IsRedrawnAsTheRequestsWhileTheseAreEntered) {
  for (const char* word : {mode::kSpeed, mode::kRpm, mode::kReferenceInForce}) {
    program.form2.Picture21.surface.Clear();
    workspace.ModeWord = word;
    RedrawChart(program);
    EXPECT_EQ(FirstRay(), 40) << word;
  }
}

TEST_F(GearPanelChart, StaysAsItIsWhileALoadIsBeingDecidedOn) {
  for (const char* word : {mode::kList, mode::kData, mode::kQuickRatio, mode::kReference}) {
    for (const char* before : {mode::kSpeed, mode::kRpm, mode::kChange}) {
      const double ray = before == std::string(mode::kChange) ? 20 : 40;
      workspace.ModeWord = word;
      program.decisionPanel.unanswered = Question::LoadWithChanges;
      program.decisionPanel.modeBefore = before;
      program.decisionPanel.load.reset();
      RedrawChart(program);
      EXPECT_EQ(FirstRay(), ray) << word << " asked for in " << before;
      program.decisionPanel.unanswered = Question::None;
      program.decisionPanel.load = AnsweredLoad{before};
      RedrawChart(program);
      EXPECT_EQ(FirstRay(), ray) << word << " on its way in " << before;
    }
  }
}

TEST_F(GearPanelChart, LegendFollowsTheMode) {
  workspace.ModeWord = mode::kReferenceInForce;
  ShowChartOfMode(program);
  EXPECT_EQ(program.form2.Label43.Caption.get(), "REQ");
  EXPECT_EQ(FirstRay(), 40);
  workspace.ModeWord = mode::kChange;
  ShowChartOfMode(program);
  EXPECT_EQ(program.form2.Label43.Caption.get(), "CHG");
  EXPECT_EQ(FirstRay(), 20);
  EXPECT_TRUE(program.form2.Picture31.Visible);
}

TEST_F(GearPanelChart, RequestsThatCannotBeDrawnEndNothing) {
  workspace.ModeWord = mode::kSpeed;
  workspace.SpeedRequest[3] = 0;
  RedrawChart(program);
  EXPECT_EQ(FirstRay(), 40);
}

TEST_F(GearPanelChart, IsLeftUnfinishedByAGearWithoutASpeed) {
  workspace.SpeedNow[3] = 0;
  RedrawChart(program);
  EXPECT_EQ(FirstRay(), 20);
  program.form2.Label38.Visible = true;
  workspace.ModeWord = mode::kSpeed;
  workspace.SpeedRequest[3] = 0;
  RedrawChart(program);
  EXPECT_EQ(FirstRay(), 40);
}

TEST_F(GearPanelChart, StaysEmptyBeforeTheFirstPlan) {
  workspace.ModeWord = mode::kBasing;
  workspace.SpeedNow.Clear();
  RedrawChart(program);
  EXPECT_TRUE(program.form2.Picture21.surface.Drawing().empty());
}

}  // namespace
}  // namespace veldrin
