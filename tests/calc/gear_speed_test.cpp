// The speed formula.
#include "calc/gear_speed.h"

#include "tests/calc/plain_search.h"
#include "tests/calc/search_tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace veldrin {
namespace {

TEST(GearSpeed, IsRevolutionsTyreRatiosAndTeethInKmh) {
  Workspace workspace;
  workspace.ShiftNe = 12000;
  workspace.TyreLength = 2.0F;
  SetRatio(workspace.PrimaryTable[1], 1, 1);
  SetRatio(workspace.FinalTable[1], 1, 2);
  SetPair(workspace, 1, 1, "A", 1, 1);
  EXPECT_EQ(static_cast<float>(GearSpeed(workspace, 1, 1, 1, 1)), 720.0F);
}

TEST(GearSpeed, IsTheSameToTheLastBitHoweverItIsAskedFor) {
  Workspace workspace;
  workspace.TyreLength = 1.95F;
  for (int k = 0; k < 20000; ++k) {
    workspace.ShiftNe = static_cast<std::int16_t>(5000 + k % 19001);
    SetRatio(workspace.PrimaryTable[1], 17 + k % 9, 51 + k % 13);
    SetRatio(workspace.FinalTable[1], 11 + k % 7, 29 + k % 23);
    SetPair(workspace, 3, 2, "A", 10 + k % 31, 9 + k % 29);
    const double speed = plain::GearSpeed(workspace, 1, 1, 3, 2);
    ASSERT_EQ(GearSpeed(workspace, 1, 1, 3, 2), speed) << k;
    ASSERT_EQ(GearSpeed(workspace, SpeedBeforeGear(workspace, 1, 1), 3, 2), speed) << k;
  }
}

TEST(GearSpeed, PairWithoutDrivenTeethIsFault11AndWithoutAnyFault6) {
  Workspace workspace = HundredKmhMachine();
  SetPair(workspace, 1, 1, "A", 14, 0);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 1, 1, 1, 1); }), kFaultDivisionByZero);
  SetPair(workspace, 1, 1, "A", 0, 0);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 1, 1, 1, 1); }), kFaultOverflow);
  SetPair(workspace, 1, 1, "A", 0, 14);
  EXPECT_EQ(GearSpeed(workspace, 1, 1, 1, 1), 0);
}

TEST(GearSpeed, RowsOutsideTheTablesAreFault9) {
  const Workspace workspace = HundredKmhMachine();
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 0, 1, 1, 1); }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 16, 1, 1, 1); }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 1, 0, 1, 1); }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 1, 201, 1, 1); }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 1, 1, 7, 1); }), kFaultSubscript);
  EXPECT_EQ(Guarded([&] { GearSpeed(workspace, 1, 1, 1, 11); }), kFaultSubscript);
}

}  // namespace
}  // namespace veldrin
