#include "model/chart_room.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(WidenRevolutions, MovesTheEndOnlyForRevolutionsBeyondIt) {
  Workspace workspace;
  workspace.MaxNe = 15000;
  workspace.ShiftNe = 15000;
  EXPECT_FALSE(WidenRevolutions(workspace));
  EXPECT_EQ(workspace.MaxNe, 15000);
  workspace.ShiftNe = 15001;
  EXPECT_TRUE(WidenRevolutions(workspace));
  EXPECT_EQ(workspace.MaxNe, 16001);
}

TEST(WidenRevolutions, AnEndBeyond16BitsIsAFault) {
  Workspace workspace;
  workspace.MaxNe = 15000;
  workspace.ShiftNe = 32000;
  EXPECT_EQ(Guarded([&] { WidenRevolutions(workspace); }), kFaultOverflow);
  EXPECT_EQ(workspace.MaxNe, 15000);
}

TEST(RaiseTopSpeed, GoesToTheNextTensButOne) {
  Workspace workspace;
  workspace.MaxSpeed = 200;
  workspace.SpeedBaseline[6] = 200;
  EXPECT_FALSE(RaiseTopSpeed(workspace));
  workspace.SpeedBaseline[6] = 209.9F;
  EXPECT_TRUE(RaiseTopSpeed(workspace));
  EXPECT_EQ(workspace.MaxSpeed, 220);
  workspace.SpeedBaseline[6] = 230;
  EXPECT_TRUE(RaiseTopSpeed(workspace));
  EXPECT_EQ(workspace.MaxSpeed, 250);
}

TEST(RaiseTopSpeed, EndsAtTheHighestThatItMayBe) {
  Workspace workspace;
  workspace.MaxSpeed = 300;
  workspace.SpeedBaseline[6] = 335;
  EXPECT_TRUE(RaiseTopSpeed(workspace));
  EXPECT_EQ(workspace.MaxSpeed, 340);
  workspace.SpeedBaseline[6] = 500;
  EXPECT_TRUE(RaiseTopSpeed(workspace));
  EXPECT_EQ(workspace.MaxSpeed, 340);
}

}  // namespace
}  // namespace veldrin
