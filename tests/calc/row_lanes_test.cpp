// Rows compared four at a time against the rule, row by row: what the lanes tell is the rule's, and they tell
// nearly always.
#include "calc/row_lanes.h"

#include "calc/gear_speed.h"
#include "calc/pairs_of_gear.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace veldrin {
namespace {

int ByRule(const GearPairs& pairs, const PassRule& rule, float request, double speedBeforeGear) {
  int first = kNoPass;
  for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
    const double speed = GearSpeedOf(speedBeforeGear, pairs.drive[k], pairs.driven[k]);
    first = std::min(first, rule.FirstPass(static_cast<float>(speed - request)));
  }
  return first;
}

TEST(PassRule, AdmitsErrorsPassByPass) {
  const PassRule tolerance{-1, 1, 19, 19};
  EXPECT_EQ(tolerance.FirstPass(0), 1);
  EXPECT_EQ(tolerance.FirstPass(-1), 1);
  EXPECT_EQ(tolerance.FirstPass(1.0000001), 2);
  EXPECT_EQ(tolerance.FirstPass(-2), 2);
  EXPECT_EQ(tolerance.FirstPass(20), 20);
  EXPECT_EQ(tolerance.FirstPass(-20.00001), kNoPass);
  const PassRule lopsided{-3, 2, 20, 1};
  EXPECT_EQ(lopsided.FirstPass(-3), 1);
  EXPECT_EQ(lopsided.FirstPass(2.5), 2);
  EXPECT_EQ(lopsided.FirstPass(3), 2);
  EXPECT_EQ(lopsided.FirstPass(3.1), kNoPass);
  EXPECT_EQ(lopsided.FirstPass(-23), 21);
  EXPECT_EQ(lopsided.FirstPass(-23.1), kNoPass);
  EXPECT_EQ((PassRule{-2, 3, 0, 0}.FirstPass(-2.1)), kNoPass);
  EXPECT_EQ(tolerance.FirstPass(1e300), kNoPass);
  EXPECT_EQ(tolerance.FirstPass(std::nan("")), kNoPass);
}

TEST(RowLanes, TellWhatTheRuleTells) {
  std::mt19937 random(7);
  const auto pick = [&](int lowest, int highest) {
    return lowest + static_cast<int>(random() % static_cast<std::uint32_t>(highest - lowest + 1));
  };
  int asked = 0;
  int told = 0;
  int passes = 0;
  for (int round = 0; round < 200000; ++round) {
    GearPairs pairs;
    pairs.count = pick(1, 10);
    for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
      pairs.drive[k] = pick(10, 30);
      pairs.driven[k] = pick(10, 30);
    }
    const PassRule rules[] = {{-1, 1, 19, 19},
                              {-1, 1, 0, 0},
                              {-pick(1, 21) * 1.0, pick(1, 21) * 1.0, 20, 1},
                              {-pick(1, 21) * 1.0, pick(1, 21) * 1.0, 0, 0}};
    const PassRule& rule = rules[pick(0, 3)];
    const auto request = static_cast<float>(pick(10, round % 10 == 0 ? 20000 : 300));
    // Half of the speeds bring a row next to a whole number of km/h from the request.
    double target = request + pick(-24, 24) + pick(-1000, 1000) / (round % 2 == 0 ? 1e3 : 1e8);
    if (round % 20 == 1) target = request + pick(-24, 24);
    const double speedBeforeGear = target / GearSpeedOf(1, pairs.drive[0], pairs.driven[0]);
    const int first = RowLanes(pairs, rule, request).FirstPass(speedBeforeGear);
    if (first == RowLanes::kAskRule) {
      asked += round % 2 == 0;
      continue;
    }
    told += round % 2 == 0;
    const int expected = ByRule(pairs, rule, request, speedBeforeGear);
    ASSERT_EQ(first, expected) << "round " << round << ", request " << request << ", before "
                               << speedBeforeGear;
    passes += first > 1 && first < kNoPass;
  }
  EXPECT_GT(passes, 10000);
  EXPECT_GT(told, 95 * asked / 5) << "asked at most 5 times in 100";
}

TEST(RowLanes, LeaveToTheRuleWhatMayFault) {
  GearPairs pairs;
  pairs.count = 1;
  pairs.drive[0] = 20;
  pairs.driven[0] = 20;
  const PassRule rule{-1, 1, 19, 19};
  EXPECT_EQ(RowLanes(pairs, rule, 100).FirstPass(100 / 0.06), 1);
  EXPECT_EQ(RowLanes(pairs, rule, 100).FirstPass(1e31), RowLanes::kAskRule);
  EXPECT_EQ(RowLanes(pairs, rule, 100).FirstPass(std::nan("")), RowLanes::kAskRule);
  EXPECT_EQ(RowLanes(pairs, rule, 1e9).FirstPass(100), RowLanes::kAskRule) << "a place of 32 bits is 64 km/h";
  pairs.lacksTeeth = true;
  EXPECT_EQ(RowLanes(pairs, rule, 100).FirstPass(100 / 0.06), RowLanes::kAskRule);
  EXPECT_EQ(RowLanes(GearPairs(), rule, 100).FirstPass(100), RowLanes::kAskRule);
}

}  // namespace
}  // namespace veldrin
