// The nearest combination against the plain enumeration of all of them, on thousands of random machines.
#include "calc/nearest_plan.h"
#include "calc/plan_search.h"
#include "tests/calc/plain_combinations.h"
#include "tests/calc/random_machine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace veldrin {
namespace {

constexpr double kNothing = std::numeric_limits<double>::infinity();

struct Nearest {
  double largest = kNothing;
  double sum = kNothing;

  void Take(double otherLargest, double otherSum) {
    if (otherLargest > largest || (otherLargest == largest && otherSum >= sum)) return;
    largest = otherLargest;
    sum = otherSum;
  }
  void Compare(const std::optional<NearPlan>& plan) const {
    ASSERT_EQ(plan.has_value(), largest != kNothing);
    if (!plan) return;
    EXPECT_EQ(static_cast<double>(plan->largest), largest);
    EXPECT_DOUBLE_EQ(plan->sum, sum);
  }
};

/// What a walk over all combinations sees.
struct Seen {
  Nearest nearest;
  Nearest held;
  Nearest forbidden;
  bool within = false;       // some combination keeps all bounds
  std::array<bool, 64> met;  // sets of gears that some combination keeps in bounds, fitted or not
  std::array<bool, 64> metFitted;
};

Seen LookAtAll(const Workspace& workspace, const SearchBounds& bounds) {
  Seen seen;
  seen.met.fill(false);
  seen.metFitted.fill(false);
  plain::ForEachCombination(workspace, [&](const plain::Combination& combination) {
    double largest = 0;
    double largestFree = 0;
    double sum = 0;
    bool keepsHeld = true;
    std::size_t met = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      const float error = combination.error[gear];
      const GearBounds& of = bounds[gear];
      const bool inBounds = error >= -of.below && error <= of.above;
      if (inBounds) met |= std::size_t{1} << (gear - 1);
      largest = std::max<double>(largest, std::fabs(error));
      if (!of.held) largestFree = std::max<double>(largestFree, std::fabs(error));
      keepsHeld = keepsHeld && (inBounds || !of.held);
      sum += std::fabs(error);
    }
    seen.met[met] = true;
    if (!plain::CanBeFitted(workspace, combination.rows)) {
      if (keepsHeld) seen.forbidden.Take(largestFree, sum);
      return;
    }
    seen.metFitted[met] = true;
    seen.nearest.Take(largest, sum);
    if (keepsHeld) seen.held.Take(largestFree, sum);
    seen.within = seen.within || met == 63;
  });
  return seen;
}

bool Covers(const std::array<bool, 64>& met, const Conflict& conflict, int left = 0) {
  for (std::size_t set = 0; set < met.size(); ++set) {
    bool all = met[set];
    for (const int gear : conflict.gears) all = all && (gear == left || (set >> (gear - 1) & 1U) != 0);
    if (all) return true;
  }
  return false;
}

bool HasThirdAndFourth(const Conflict& conflict) {
  return std::count_if(conflict.gears.begin(), conflict.gears.end(),
                       [](int g) { return g == 3 || g == 4; }) == 2;
}

TEST(NearestPlan, EqualsThePlainEnumerationOnRandomMachines) {
  int missed = 0;
  int forbidden = 0;
  int together = 0;
  int held = 0;
  for (std::uint32_t seed = 1; seed <= 2000; ++seed) {
    RandomMachine random(seed + 5000000);
    Workspace workspace = random.MakeSmall();
    if (random.Chance(30))
      workspace.SpeedRequest[random.Pick(1, 6)] += static_cast<float>(random.Pick(-60, 60));
    Table<bool, 1, kGears> manual;
    for (int gear = 1; gear <= kGears; ++gear) manual[gear] = random.Chance(20);
    const SearchBounds bounds = random.Chance(50) ? MixedBounds(workspace, manual)
                                                  : AutoBounds(random.Chance(50) ? 0 : random.Pick(1, 6));
    const NearestPlans found = FindNearestPlans(workspace, bounds);
    const Seen seen = LookAtAll(workspace, bounds);
    SCOPED_TRACE("machine " + std::to_string(seed));
    seen.nearest.Compare(found.nearest);
    seen.held.Compare(found.nearestHeld);
    EXPECT_EQ(found.nearestForbidden.has_value(), seen.forbidden.largest < seen.held.largest);
    if (found.nearestForbidden) seen.forbidden.Compare(found.nearestForbidden);
    EXPECT_EQ(found.conflicts.empty(), seen.within);
    for (const Conflict& conflict : found.conflicts) {
      EXPECT_FALSE(Covers(seen.metFitted, conflict));
      EXPECT_TRUE(!conflict.forbiddenPairs || HasThirdAndFourth(conflict));
      if (seen.nearest.largest != kNothing) {
        EXPECT_EQ(conflict.forbiddenPairs, Covers(seen.met, conflict));
        for (const int gear : conflict.gears) {
          const bool keepsBoth = HasThirdAndFourth(conflict) && gear != 3 && gear != 4;
          EXPECT_TRUE(Covers(keepsBoth ? seen.metFitted : seen.met, conflict, gear));
        }
      }
      forbidden += conflict.forbiddenPairs;
      together += conflict.gears.size() > 1;
    }
    missed += !found.conflicts.empty();
    held += found.nearest && found.nearestHeld && found.nearest->largest != found.nearestHeld->largest;
    if (HasFatalFailure() || HasNonfatalFailure()) return;
  }
  EXPECT_GT(missed, 200);
  EXPECT_GT(forbidden, 15);
  EXPECT_GT(together, 50);
  EXPECT_GT(held, 50);
}

TEST(NearestPlan, HasRoomForWhatASearchFinds) {
  int found = 0;
  for (std::uint32_t seed = 1; seed <= 1000; ++seed) {
    RandomMachine random(seed + 6000000);
    Workspace workspace = random.Make();
    workspace.MinPlan = 1;
    const NearestPlans nearest = FindNearestPlans(workspace, AutoBounds(0));
    bool success = false;
    int passes = 0;
    const int fault =
        Guarded([&] { success = SearchAuto(workspace, 0, [&](int final) { passes += final == 1; }); });
    if (fault != 0 || !success || workspace.PrimaryCount == 0) continue;
    ++found;
    EXPECT_TRUE(nearest.conflicts.empty()) << "machine " << seed;
    ASSERT_TRUE(nearest.nearest) << "machine " << seed;
    const int tolerance = (passes - 1) / workspace.PrimaryCount + 1;
    EXPECT_LE(nearest.nearest->largest, tolerance) << "machine " << seed;
  }
  EXPECT_GT(found, 150);
}

}  // namespace
}  // namespace veldrin
