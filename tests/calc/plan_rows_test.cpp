// Found plans and their texts.
#include "calc/plan_rows.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace veldrin {
namespace {

PlanRows Rows(int primary, int final, const std::array<int, kGears>& gears) {
  PlanRows plan;
  plan.primary = static_cast<std::int16_t>(primary);
  plan.final = static_cast<std::int16_t>(final);
  for (int gear = 1; gear <= kGears; ++gear) {
    plan.gear[gear] = static_cast<std::int16_t>(gears[static_cast<std::size_t>(gear - 1)]);
  }
  return plan;
}

/// The plan of a text that is one.
PlanRows RowsOf(const std::string& text) {
  PlanRows plan;
  ReadListText(text, '.', plan);
  return plan;
}

TEST(PlanRows, AreJoinedByCommasWithoutBlanks) {
  EXPECT_EQ(ListText(Rows(2, 17, {3, 1, 4, 2, 2, 5})), "2,17,3,1,4,2,2,5");
  EXPECT_EQ(ListText(Rows(8, 200, {10, 10, 10, 10, 10, 10})), "8,200,10,10,10,10,10,10");
}

TEST(PlanRows, ComeBackFromTheirText) {
  const PlanRows plan = RowsOf("2,17,3,1,4,2,2,5");
  EXPECT_EQ(plan.primary, 2);
  EXPECT_EQ(plan.final, 17);
  const int rows[] = {3, 1, 4, 2, 2, 5};
  for (int gear = 1; gear <= kGears; ++gear) EXPECT_EQ(plan.gear[gear], rows[gear - 1]) << gear;
  for (const char* text : {"1,1,1,1,1,1,1,1", "8,200,10,1,10,1,10,10"}) {
    EXPECT_EQ(ListText(RowsOf(text)), text);
  }
}

TEST(PlanRows, OfATextGoToTheEighthNumber) {
  EXPECT_EQ(RowsOf("1,200,1,1,1,1,1,10").gear[6], 10);
  EXPECT_EQ(RowsOf("1,2,3,4,5,6,7,8,9").gear[6], 8);
  EXPECT_EQ(RowsOf("1,2,3,4,5,6,7,8,").gear[6], 8);
  EXPECT_EQ(RowsOf("1,2,3,4,5,6,7,8,x").gear[6], 8);
}

TEST(PlanRows, FailAtAFieldThatIsNoNumber) {
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
  for (const Case& c : cases) EXPECT_EQ(Guarded([&] { RowsOf(c.text); }), c.fault) << c.text;
}

TEST(PlanRows, KeepWhatStandsBeforeTheFault) {
  PlanRows plan = Rows(9, 9, {9, 9, 9, 9, 9, 9});
  EXPECT_EQ(Guarded([&] { ReadListText("4,19,4,5,6,x,6,3", '.', plan); }), 13);
  EXPECT_EQ(ListText(plan), "4,19,4,5,6,9,9,9");
}

}  // namespace
}  // namespace veldrin
