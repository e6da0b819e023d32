// The rules of the mixed search one by one, on machines whose speeds can be worked out in the head.
#include "calc/plan_search.h"
#include "tests/calc/plain_machine.h"

#include <vector>

namespace veldrin {
namespace {

TEST(SearchMixed, TakesErrorsOfExactlyTheBounds) {
  Workspace workspace = OneRowAt100();
  workspace.ToleranceMinus[1] = 2;
  workspace.TolerancePlus[1] = 3;
  for (const int speed : {98, 99, 100, 101, 102, 103}) {
    SetSpeeds(workspace, 1, {speed});
    PassCounter counter;
    EXPECT_TRUE(SearchMixed(workspace, Manual({1}), counter.Count())) << speed;
    EXPECT_EQ(counter.passes, 1) << speed;
  }
}

TEST(SearchMixed, ManualGearNeverLeavesItsBounds) {
  Workspace workspace = OneRowAt100();
  workspace.ToleranceMinus[1] = 2;
  workspace.TolerancePlus[1] = 3;
  for (const int speed : {97, 104}) {
    SetSpeeds(workspace, 1, {speed});
    PassCounter counter;
    EXPECT_FALSE(SearchMixed(workspace, Manual({1}), counter.Count())) << speed;
    EXPECT_EQ(counter.passes, 21) << speed;
    EXPECT_EQ(workspace.ResultWord, "OVER");
    workspace.ResultWord = "";
  }
}

TEST(SearchMixed, LowerBoundSinksByOneInEveryPassDownTo21) {
  Workspace workspace = OneRowAt100();
  for (const int below : {1, 2, 3, 10, 20, 21}) {
    SetSpeeds(workspace, 2, {100 - below});
    PassCounter counter;
    EXPECT_TRUE(SearchMixed(workspace, Manual({1}), counter.Count())) << below;
    EXPECT_EQ(counter.passes, below);
  }
  SetSpeeds(workspace, 2, {78});
  EXPECT_FALSE(SearchMixed(workspace, Manual({1}), Silent));
}

TEST(SearchMixed, UpperBoundGrowsOnceAndStays) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 2, {101});
  PassCounter first;
  EXPECT_TRUE(SearchMixed(workspace, Manual({1}), first.Count()));
  EXPECT_EQ(first.passes, 1);
  SetSpeeds(workspace, 2, {102});
  PassCounter second;
  EXPECT_TRUE(SearchMixed(workspace, Manual({1}), second.Count()));
  EXPECT_EQ(second.passes, 2);
  SetSpeeds(workspace, 2, {103});
  EXPECT_FALSE(SearchMixed(workspace, Manual({1}), Silent));
}

TEST(SearchMixed, AutoGearsUseTheirStoredTolerancesToo) {
  Workspace workspace = OneRowAt100();
  workspace.ToleranceMinus[2] = 7;
  workspace.TolerancePlus[3] = 4;
  SetSpeeds(workspace, 2, {93});
  SetSpeeds(workspace, 3, {104});
  PassCounter counter;
  EXPECT_TRUE(SearchMixed(workspace, Manual({6}), counter.Count()));
  EXPECT_EQ(counter.passes, 1);
}

TEST(SearchMixed, TakesTheFirstPassWithPlansWhateverMinPlanIs) {
  Workspace workspace = OneRowAt100();
  SetFinals(workspace, {98, 100, 101, 99});
  workspace.MinPlan = 30;
  EXPECT_TRUE(SearchMixed(workspace, Manual({1}), Silent));
  EXPECT_EQ(Found(workspace), (Plans{"1,2,1,1,1,1,1,1", "1,3,1,1,1,1,1,1", "1,4,1,1,1,1,1,1"}));
}

TEST(SearchMixed, ChoosesRowsByTheirAbsoluteErrors) {
  Workspace workspace = OneRowAt100();
  workspace.ToleranceMinus[1] = 5;
  workspace.TolerancePlus[1] = 5;
  SetSpeeds(workspace, 1, {95, 103, 97, 102});
  // Errors 5, 3, 3, 2: the tie keeps row 2, row 4 is nearer than row 3.
  EXPECT_TRUE(SearchMixed(workspace, Manual({1}), Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,4,1,1,1,1,1"});
  SetSpeeds(workspace, 1, {95, 103, 97});
  EXPECT_TRUE(SearchMixed(workspace, Manual({1}), Silent));
  EXPECT_EQ(Found(workspace), Plans{"1,1,2,1,1,1,1,1"});
}

TEST(SearchMixed, ForbiddenPairDropsTheCombination) {
  Workspace workspace = OneRowAt100();
  SetSpeeds(workspace, 3, {100, 101});
  workspace.M34Matrix(1, 1) = 99;
  EXPECT_FALSE(SearchMixed(workspace, Manual({1}), Silent));
}

TEST(SearchMixed, The31stPlanIsFault9) {
  Workspace workspace = OneRowAt100();
  workspace.PrimaryCount = 2;
  SetRatio(workspace.PrimaryTable[2], 1, 3);
  SetFinals(workspace, std::vector<int>(16, 100));
  EXPECT_EQ(Guarded([&] { SearchMixed(workspace, Manual({1}), Silent); }), kFaultSubscript);
  EXPECT_EQ(workspace.PlanCount, 31);
}

}  // namespace
}  // namespace veldrin
