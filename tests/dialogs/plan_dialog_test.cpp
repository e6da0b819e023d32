#include "dialogs/plan_dialog.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

struct Split {
  int fault;
  PlanDialogState dialog;
};

/// What becomes of a plan text.
Split SplitText(const std::string& text) {
  Workspace workspace;
  workspace.PlanList[1] = text;
  Split split;
  split.fault = Guarded([&] { SplitPlan(workspace, split.dialog, 1); });
  return split;
}

TEST(SplitPlan, TakesEightNumbersApart) {
  const Split split = SplitText("2,17,3,1,4,2,2,5");
  EXPECT_EQ(split.fault, 0);
  EXPECT_EQ(split.dialog.ShownPrimary, 2);
  EXPECT_EQ(split.dialog.ShownFinal, 17);
  const int rows[] = {3, 1, 4, 2, 2, 5};
  for (int gear = 1; gear <= kGears; ++gear) EXPECT_EQ(split.dialog.ShownRow[gear], rows[gear - 1]) << gear;
}

TEST(SplitPlan, TakesTheLastFieldToTheEndOfTheText) {
  EXPECT_EQ(SplitText("1,200,1,1,1,1,1,10").dialog.ShownRow[6], 10);
  // A ninth field is not looked at.
  EXPECT_EQ(SplitText("1,2,3,4,5,6,7,8,9").fault, 0);
  EXPECT_EQ(SplitText("1,2,3,4,5,6,7,8,").dialog.ShownRow[6], 8);
}

TEST(SplitPlan, FailsAtAFieldThatIsNoNumber) {
  struct Case {
    const char* text;
    int fault;
  };
  const Case cases[] = {
      {"", 13},
      {",", 13},
      {"1", 13},
      {"1,2,3,4,5,6,7", 13},
      {"1,2,3,4,5,6,7,", 13},
      {"1,,3,4,5,6,7,8", 13},
      {"1,2,x,4,5,6,7,8", 13},
      {"32768,1,1,1,1,1,1,1", 6},
      {"32767,1,1,1,1,1,1,1", 0},
  };
  for (const Case& c : cases) EXPECT_EQ(SplitText(c.text).fault, c.fault) << c.text;
}

TEST(SplitPlan, KeepsWhatItReadBeforeTheFault) {
  const Split split = SplitText("4,19,4,5,6,x,6,3");
  EXPECT_EQ(split.fault, 13);
  EXPECT_EQ(split.dialog.ShownPrimary, 4);
  EXPECT_EQ(split.dialog.ShownFinal, 19);
  EXPECT_EQ(split.dialog.ShownRow[3], 6);
  EXPECT_EQ(split.dialog.ShownRow[4], 0);
}

TEST(SplitPlan, FailsForASlotOutsideTheList) {
  Workspace workspace;
  PlanDialogState dialog;
  EXPECT_EQ(Guarded([&] { SplitPlan(workspace, dialog, kPlanLimit + 1); }), 9);
  EXPECT_EQ(Guarded([&] { SplitPlan(workspace, dialog, -1); }), 9);
}

}  // namespace
}  // namespace veldrin
