#include "mainwin/gear_panel_chart.h"

#include "script/simulated_machine.h"

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
  program.form2.Label38.Visible = true;
  workspace.ModeWord = mode::kSpeed;
  RedrawChart(program);
  EXPECT_EQ(FirstRay(), 40);
  workspace.ModeWord = mode::kRpm;
  RedrawChart(program);
  EXPECT_EQ(FirstRay(), 40);
}

TEST_F(GearPanelChart, StaysTheRequestsWhileALoadIsBeingDecidedOn) {
  program.form2.Label38.Visible = true;
  workspace.ModeWord = mode::kData;
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
