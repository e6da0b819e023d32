// The rules of the automatic search one by one, on machines whose speeds can be worked out in the head.
#include "calc/plan_search.h"

#include "tests/calc/plain_machine.h"

#include <cstdint>
#include <vector>

namespace veldrin {
namespace {

TEST(SearchAuto, EndsAtTheFirstPassThatGivesEnoughPlansInWalkingOrder) {
  Workspace workspace = OneRowAt100();
  workspace.PrimaryCount = 2;
  SetRatio(workspace.PrimaryTable[2], 1, 3);
  SetFinals(workspace, {90, 100, 101, 103});
  PassCounter counter;
  EXPECT_TRUE(SearchAuto(workspace, 0, counter.Count()));
  EXPECT_EQ(Found(workspace),
            (Plans{"1,2,1,1,1,1,1,1", "1,3,1,1,1,1,1,1", "2,2,1,1,1,1,1,1", "2,3,1,1,1,1,1,1"}));
  EXPECT_EQ(counter.passes, 2) << "one for each of the two primary rows";
}

TEST(SearchAuto, TakesAnErrorOfExactlyTheTolerance) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {105});
  PassCounter counter;
  EXPECT_TRUE(SearchAuto(workspace, 0, counter.Count()));
  EXPECT_EQ(counter.passes, 5);
}

TEST(SearchAuto, WidensUpTo20AndNoFurther) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {80});
  PassCounter near;
  EXPECT_TRUE(SearchAuto(workspace, 0, near.Count()));
  EXPECT_EQ(near.passes, 20);
  SetFinals(workspace, {79});
  PassCounter far;
  EXPECT_FALSE(SearchAuto(workspace, 0, far.Count()));
  EXPECT_EQ(far.passes, 20);
  EXPECT_EQ(workspace.PlanCount, 0);
}

TEST(SearchAuto, MainGearStaysWithin1WhileTheOthersWiden) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {100});
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedRequest[gear] = gear == 4 ? 101 : 115;
  EXPECT_TRUE(SearchAuto(workspace, 4, Silent));
  workspace.SpeedRequest[4] = 102;
  EXPECT_FALSE(SearchAuto(workspace, 4, Silent));
  EXPECT_TRUE(SearchAuto(workspace, 3, Silent) == false) << "the main gear is 15 off";
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
}

TEST(SearchAuto, TieKeepsTheEarlierRow) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 2, {98, 102});
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,1,1,1,1,1,1"});
}

TEST(SearchAuto, TakesTheNearestRowOfAnOrderedGear) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 5, {97, 99, 100, 101, 103});
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,1,1,1,1,3,1"});
}

TEST(SearchAuto, ComparesWithTheCandidateJustBeforeAndNotWithTheNearest) {
  Workspace workspace = OneRowAt100();
  // All pass at once, since gear 6 asks for a tolerance of 9. Errors 0, 8, 7: the third row takes over.
  SetSpeeds(workspace, 1, {100, 108, 107});
  SetSpeeds(workspace, 6, {109});
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,3,1,1,1,1,1"});
}

TEST(SearchAuto, RowsThatDoNotPassAreNoCandidates) {
  Workspace workspace = OneRowAt100();
  // Errors 0, 8, 7 at a tolerance of 1: only the first row is a candidate.
  SetSpeeds(workspace, 1, {100, 108, 107});
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,1,1,1,1,1,1"});
}

TEST(SearchAuto, PlacesWithoutAPairAreSkipped) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 3, {100, 100, 101});
  workspace.GearTable(3, 1) = "99";
  workspace.GearTable(3, 2) = "99";
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,1,1,3,1,1,1"});
}

TEST(SearchAuto, GearWithoutAnyPairFails) {
  Workspace workspace = OneRowAt100();
  workspace.GearTable(6, 1) = "99";
  EXPECT_FALSE(SearchAuto(workspace, 0, Silent));
}

TEST(SearchAuto, ForbiddenPairDropsTheCombinationThoughAWorseRowWouldBeAllowed) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 3, {100, 101});
  workspace.M34Matrix(1, 1) = 99;
  EXPECT_FALSE(SearchAuto(workspace, 0, Silent));
  workspace.M34Matrix(1, 1) = 98;
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
}

TEST(SearchAuto, ForbiddenPairIsReadByTheRowOfThirdThenOfFourth) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 3, {100, 130});
  SetSpeeds(workspace, 4, {130, 100});
  workspace.M34Matrix(2, 1) = 99;
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,1,1,1,2,1,1"});
  workspace.M34Matrix(1, 2) = 99;
  EXPECT_FALSE(SearchAuto(workspace, 0, Silent));
}

TEST(SearchAuto, PlansOfEarlierPassesStayAndAreListedOnce) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {102, 100});
  workspace.MinPlan = 2;
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), (Plans{"1,2,1,1,1,1,1,1", "1,1,1,1,1,1,1,1"}));
}

TEST(SearchAuto, TwoNeighbouringDuplicatesLeaveAnEmptyPlan) {
  Workspace workspace = OneRowAt100();
  // Pass 1 finds A; pass 2 A and B; pass 3 A, B and C. Then the list is A B A B C: slots 3 and 4 are emptied,
  // C moves to 4 and the gap at 3, which moved under the walk, stays.
  SetFinals(workspace, {100, 102, 103});
  workspace.MinPlan = 3;
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), (Plans{"1,1,1,1,1,1,1,1", "1,2,1,1,1,1,1,1", "", "1,3,1,1,1,1,1,1"}));
  EXPECT_EQ(workspace.PlanList[5], "1,3,1,1,1,1,1,1") << "what lies behind the count is left as it was";
}

TEST(SearchAuto, EmptyPlanAtTheEndOfTheListEndsTheCompaction) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {100, 102});
  // Pass 2 leaves A B. Pass 3 finds both again, A B A B: slots 3 and 4 are emptied, at 3 the list is closed
  // by one, 4 lies behind its end and takes another one off.
  workspace.MinPlan = 3;
  EXPECT_FALSE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(Found(workspace), (Plans{"1,1,1,1,1,1,1,1", "1,2,1,1,1,1,1,1"}));
}

TEST(SearchAuto, MinPlanOfNoughtIsMetAfterTheFirstPass) {
  Workspace workspace = OneRowAt100();
  Request(workspace, 300);
  workspace.MinPlan = 0;
  PassCounter counter;
  EXPECT_TRUE(SearchAuto(workspace, 0, counter.Count()));
  EXPECT_EQ(counter.passes, 1);
  EXPECT_EQ(workspace.PlanCount, 0);
}

TEST(SearchAuto, ThirtyPlansFitAndThe31stIsFault9) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, std::vector<int>(15, 100));
  workspace.PrimaryCount = 2;
  SetRatio(workspace.PrimaryTable[2], 1, 3);
  EXPECT_TRUE(SearchAuto(workspace, 0, Silent));
  EXPECT_EQ(workspace.PlanCount, 30);
  EXPECT_EQ(workspace.PlanList[30], "2,15,1,1,1,1,1,1");
  SetFinals(workspace, std::vector<int>(16, 100));
  EXPECT_EQ(Guarded([&] { SearchAuto(workspace, 0, Silent); }), kFaultSubscript);
  EXPECT_EQ(workspace.PlanCount, 31);
  EXPECT_EQ(workspace.PlanList[30], "2,14,1,1,1,1,1,1");
}

TEST(SearchAuto, PlansFoundAgainCountUntilThePassEnds) {
  Workspace workspace = OneRowAt100();
  // 16 plans in pass 1 are too few for a MinPlan of 17; in pass 2 the 15th of them is the 31st in the list.
  SetFinals(workspace, std::vector<int>(16, 100));
  workspace.MinPlan = 17;
  EXPECT_EQ(Guarded([&] { SearchAuto(workspace, 0, Silent); }), kFaultSubscript);
}

TEST(SearchAuto, ToothlessPairIsAFaultWhenItIsLookedAt) {
  Workspace workspace = OneRowAt100();
  SetPair(workspace, 2, 1, "A", 1, 0);
  EXPECT_EQ(Guarded([&] { SearchAuto(workspace, 0, Silent); }), kFaultDivisionByZero);
  SetPair(workspace, 2, 1, "A", 0, 0);
  EXPECT_EQ(Guarded([&] { SearchAuto(workspace, 0, Silent); }), kFaultOverflow);
  // Gear 1 abandons every combination before gear 2 is looked at.
  workspace.SpeedRequest[1] = 300;
  EXPECT_EQ(Guarded([&] { EXPECT_FALSE(SearchAuto(workspace, 0, Silent)); }), 0);
  // A place without a pair is never divided.
  workspace.SpeedRequest[1] = 100;
  SetPair(workspace, 2, 1, "99", 0, 0);
  EXPECT_EQ(Guarded([&] { EXPECT_FALSE(SearchAuto(workspace, 0, Silent)); }), 0);
}

TEST(SearchAuto, MoreGearRowsThanTheTablesHoldAreFault9) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 1, {100});
  workspace.GearRows = 11;
  EXPECT_EQ(Guarded([&] { SearchAuto(workspace, 0, Silent); }), kFaultSubscript);
  SetPair(workspace, 1, 10, "B", 1, 0);
  EXPECT_EQ(Guarded([&] { SearchAuto(workspace, 0, Silent); }), kFaultDivisionByZero) << "row 10 comes first";
  workspace.PrimaryCount = 0;
  EXPECT_EQ(Guarded([&] { EXPECT_FALSE(SearchAuto(workspace, 0, Silent)); }), 0) << "nothing is walked";
}

TEST(SearchAuto, MachineWithoutGearRowsFindsNothing) {
  Workspace workspace = OneRowAt100();
  for (const int rows : {0, -1, -32768}) {
    workspace.GearRows = static_cast<std::int16_t>(rows);
    EXPECT_FALSE(SearchAuto(workspace, 0, Silent)) << rows;
  }
}

TEST(Blink, ComesForEveryCombinationOfEveryPassByItsFinalRow) {
  Workspace workspace = OneRowAt100();
  workspace.PrimaryCount = 2;
  SetRatio(workspace.PrimaryTable[2], 1, 3);
  SetFinals(workspace, {102, 120});
  std::vector<int> told;
  EXPECT_TRUE(SearchAuto(workspace, 0, [&](int finalRow) { told.push_back(finalRow); }));
  EXPECT_EQ(told, (std::vector<int>{1, 2, 1, 2, 1, 2, 1, 2}));
}

TEST(SearchAuto, NearestErrorIsTakenBeforeSpeedsAreNarrowed) {
  Workspace workspace = OneRowAt100();
  // 100 km/h asked for, 101.000001 km/h given: beyond 1 in 64 bits, and so in the 32 bits of the error,
  // though the two speeds as 32-bit floats are exactly 1 apart.
  SetPair(workspace, 1, 1, "A", 10000, 9901);
  workspace.TyreLength = 1;
  SetRatio(workspace.FinalTable[1], 1, 1);
  workspace.FinalTable[1].Ratio = 101.000001 * 9901 / 10000 / 100;
  for (int gear = 2; gear <= kGears; ++gear) SetPair(workspace, gear, 1, "A", 10000, 10000);
  PassCounter counter;
  EXPECT_TRUE(SearchAuto(workspace, 0, counter.Count()));
  EXPECT_EQ(counter.passes, 2);
}

}  // namespace
}  // namespace veldrin
