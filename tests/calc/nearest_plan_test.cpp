// What comes nearest and why nothing was found, on machines whose speeds can be worked out in the head.
#include "calc/nearest_plan.h"

#include "tests/calc/plain_machine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

using Gears = std::vector<int>;

TEST(NearestPlan, NamesTheGearThatNoCombinationBringsNearEnough) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {90, 110});
  workspace.SpeedRequest[6] = 140;
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  ASSERT_EQ(found.conflicts.size(), 1U);
  EXPECT_EQ(found.conflicts[0].gears, Gears{6});
  EXPECT_FALSE(found.conflicts[0].forbiddenPairs);
  ASSERT_TRUE(found.reach[6].below);
  EXPECT_FLOAT_EQ(found.reach[6].below->speed, 110);
  EXPECT_FLOAT_EQ(found.reach[6].below->error, -30);
  EXPECT_EQ(found.reach[6].below->final, 2);
  EXPECT_FALSE(found.reach[6].above);
  ASSERT_TRUE(found.nearest);
  EXPECT_EQ(found.nearest->rows.final, 2) << "10 above in five gears, 30 below in 6th";
  EXPECT_FLOAT_EQ(found.nearest->largest, 30);
  EXPECT_FLOAT_EQ(found.nearest->error[1], 10);
}

TEST(NearestPlan, ReachGoesBothWaysAndASpeedThatIsMetIsBoth) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 2, {80, 95, 103, 120});
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  EXPECT_EQ(found.reach[2].below->row, 2);
  EXPECT_FLOAT_EQ(found.reach[2].below->error, -5);
  EXPECT_EQ(found.reach[2].above->row, 3);
  EXPECT_FLOAT_EQ(found.reach[2].above->error, 3);
  EXPECT_EQ(found.nearest->rows.gear[2], 3);
  EXPECT_EQ(found.reach[1].below->speed, 100) << "100 times a third three times, which is less in 64 bits";
  EXPECT_EQ(found.reach[1].above->speed, 100);
}

TEST(NearestPlan, NamesGearsThatCannotBeMetTogether) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {70, 130});
  workspace.SpeedRequest[2] = 70;
  workspace.SpeedRequest[5] = 130;
  for (const int gear : {1, 3, 4, 6}) SetSpeeds(workspace, gear, {77, 143});  // near 100 with either
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  ASSERT_EQ(found.conflicts.size(), 1U);
  EXPECT_EQ(found.conflicts[0].gears, (Gears{2, 5}));
}

TEST(NearestPlan, NamesForbiddenPairsAndWhatTheyCost) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 3, {60, 100});
  SetSpeeds(workspace, 4, {100, 150});
  workspace.M34Matrix(2, 1) = kEndMark;
  workspace.M34Matrix(1, 2) = kEndMark;
  EXPECT_FALSE(SearchAuto(workspace, 0, [](int) {}));
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  ASSERT_EQ(found.conflicts.size(), 1U);
  EXPECT_EQ(found.conflicts[0].gears, (Gears{3, 4}));
  EXPECT_TRUE(found.conflicts[0].forbiddenPairs);
  EXPECT_FLOAT_EQ(found.nearest->largest, 40);
  EXPECT_EQ(found.nearest->rows.gear[3], 1);
  EXPECT_EQ(found.nearest->rows.gear[4], 1);
  ASSERT_TRUE(found.nearestForbidden);
  EXPECT_NEAR(found.nearestForbidden->largest, 0, 1e-9);
  EXPECT_EQ(found.nearestForbidden->rows.gear[3], 2);
}

TEST(NearestPlan, FindsWhatTheSearchPassesOverSinceItTriesTheNearestPairsAlone) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 3, {98, 100});
  workspace.M34Matrix(2, 1) = kEndMark;
  EXPECT_FALSE(SearchAuto(workspace, 0, [](int) {}));
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  EXPECT_TRUE(found.conflicts.empty());
  EXPECT_FLOAT_EQ(found.nearestHeld->largest, 2);
  EXPECT_EQ(found.nearestHeld->rows.gear[3], 1);
}

TEST(NearestPlan, AnExcludedPairIsReplacedByTheOneThatMissesLeastOfAllGears) {
  Workspace workspace = OneRowAt100();
  workspace.SpeedRequest[1] = 110;
  SetSpeeds(workspace, 3, {91, 95, 100});
  SetSpeeds(workspace, 4, {92, 94, 100});
  for (int fourth = 1; fourth <= 3; ++fourth) workspace.M34Matrix(3, fourth) = kEndMark;
  workspace.M34Matrix(2, 3) = kEndMark;
  // 1st misses by 10 whatever is done, so of pairs within 10 the sum decides: 9 and 0, 5 and 6, 5 and 8, ...
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  EXPECT_EQ(found.nearest->rows.gear[3], 1);
  EXPECT_EQ(found.nearest->rows.gear[4], 3);
  EXPECT_FLOAT_EQ(found.nearest->largest, 10);
  EXPECT_FLOAT_EQ(static_cast<float>(found.nearest->sum), 19);
}

TEST(NearestPlan, HeldGearsKeepTheirBoundsAndDoNotCount) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {70, 85});
  workspace.SpeedRequest[4] = 70;
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(4));
  EXPECT_EQ(found.nearest->rows.final, 2) << "15 off everywhere";
  EXPECT_EQ(found.nearestHeld->rows.final, 1) << "the main gear is met, the others are 30 off";
  EXPECT_FLOAT_EQ(found.nearestHeld->largest, 30);
  EXPECT_EQ(found.conflicts.size(), 5U) << "4th with each other gear";
}

TEST(NearestPlan, WithoutAPairThereIsNoCombination) {
  Workspace workspace = OneRowAt100();
  ClearPairs(workspace, 5);
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  EXPECT_FALSE(found.nearest);
  EXPECT_FALSE(found.reach[5].below);
  EXPECT_FALSE(found.reach[5].above);
  ASSERT_EQ(found.conflicts.size(), 1U);
  EXPECT_EQ(found.conflicts[0].gears, Gears{5});
}

TEST(NearestPlan, ARowWithoutDrivenTeethIsPassedOver) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 5, {100, 98});
  workspace.GearDrivenTeeth(5, 1) = 0;
  const NearestPlans found = FindNearestPlans(workspace, AutoBounds(0));
  EXPECT_EQ(found.nearest->rows.gear[5], 2);
}

TEST(SearchBounds, AreThoseOfTheWidestPass) {
  Workspace workspace = OneRowAt100();
  workspace.ToleranceMinus[2] = 3;
  workspace.TolerancePlus[2] = 4;
  Table<bool, 1, kGears> manual;
  const GearBounds widened = MixedBounds(workspace, manual)[2];
  EXPECT_EQ(widened.below, 23);
  EXPECT_EQ(widened.above, 5);
  EXPECT_FALSE(widened.held);
  manual[2] = true;
  const GearBounds held = MixedBounds(workspace, manual)[2];
  EXPECT_EQ(held.below, 3);
  EXPECT_EQ(held.above, 4);
  EXPECT_TRUE(held.held);
}

/// The bounds tell exactly what the searches let pass in the end.
TEST(SearchBounds, AreWhereTheSearchesEnd) {
  for (int speed = 70; speed <= 130; ++speed) {
    Workspace workspace = OneRowAt100();
    SetFinals(workspace, {speed});
    const float error = static_cast<float>(speed - 100);
    EXPECT_EQ(SearchAuto(workspace, 0, [](int) {}), AutoBounds(0)[1].Hold(error)) << speed;
    Table<bool, 1, kGears> manual;
    EXPECT_EQ(SearchMixed(workspace, manual, [](int) {}), MixedBounds(workspace, manual)[1].Hold(error))
        << speed;
  }
}

}  // namespace
}  // namespace veldrin
