#include "model/file_tags.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(FileTags, OnlyTheBeginningCountsInItsExactCase) {
  for (const char* list : {"LIST", "LISTS", "LIST:NX4"}) {
    EXPECT_TRUE(IsListTag(list)) << list;
    EXPECT_FALSE(IsPlanTag(list)) << list;
  }
  for (const char* plan : {"FROM:NX4.RAT", "FROM", "FROMAGE"}) {
    EXPECT_TRUE(IsPlanTag(plan)) << plan;
    EXPECT_FALSE(IsListTag(plan)) << plan;
  }
  for (const char* other : {"", "LIS", "list", "FRO", "from:NX4.RAT", " LIST", "NX4"}) {
    EXPECT_FALSE(IsListTag(other)) << other;
    EXPECT_FALSE(IsPlanTag(other)) << other;
  }
}

TEST(FileTags, APlanNamesItsMachine) {
  EXPECT_EQ(PlanTag("NX4"), "FROM:NX4.RAT");
  EXPECT_EQ(MachineOfPlan(PlanTag("NX4")), "NX4");
  EXPECT_EQ(MachineOfPlan("FROM-Nx4.rat.old"), "Nx4");
  EXPECT_EQ(MachineOfPlan("FROM:.RAT"), "");
}

TEST(FileTags, ATagWithoutAPointBehindTheNameIsABadCall) {
  EXPECT_EQ(Guarded([] { MachineOfPlan("FROM:NX4"); }), kFaultBadCall);
  EXPECT_EQ(Guarded([] { MachineOfPlan("FROM.RAT"); }), kFaultBadCall);
}

}  // namespace
}  // namespace veldrin
