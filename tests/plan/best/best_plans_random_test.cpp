// The best plans against the plain enumeration of all combinations, on thousands of random machines.
#include "plan/best/best_plans.h"
#include "tests/calc/plain_combinations.h"
#include "tests/calc/random_machine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace veldrin {
namespace {

/// A combination as the rules measure it: misses to a millionth of a km/h, drops to a thousandth of a
/// rev/min.
struct Measured {
  std::vector<long long> key;  // by rank, then rows in walking order
  Measures measures;
};

Measured Measure(const Workspace& w, const BestQuery& query, const plain::Combination& combination) {
  const PlanRows& rows = combination.rows;
  Measured measured;
  Measures& m = measured.measures;
  for (int gear = 1; gear <= kGears; ++gear) {
    const long long miss = std::llround(std::fabs(static_cast<double>(combination.error[gear])) * 1000000);
    m.miss = std::max<long long>(m.miss, miss);
    m.sum += miss;
  }
  long long before = 0;
  for (int gear = 2; gear <= kGears; ++gear) {
    const auto ratio = [&](int g) {
      return static_cast<double>(w.GearDriveTeeth(g, rows.gear[g])) / w.GearDrivenTeeth(g, rows.gear[g]);
    };
    const long long drop = std::llround(w.ShiftNe * (1 - ratio(gear - 1) / ratio(gear)) * 1000);
    if (gear > 2) m.steps += (drop - before) * (drop - before);
    before = drop;
  }
  m.changed = query.costs.primary[rows.primary] + query.costs.final[rows.final] +
              query.costs.joint(rows.gear[3], rows.gear[4]);
  for (const int gear : {1, 2, 5, 6}) m.changed += query.costs.gear(gear, rows.gear[gear]);
  switch (query.rank) {
    case Rank::Miss:
      measured.key = {m.miss, m.sum, 0};
      break;
    case Rank::Sum:
      measured.key = {m.sum, m.miss, 0};
      break;
    case Rank::Steps:
      measured.key = {m.steps, m.miss, m.sum};
      break;
    case Rank::Change:
      measured.key = {m.changed, m.miss, m.sum};
      break;
  }
  measured.key.insert(measured.key.end(), {rows.primary, rows.final});
  for (int gear = 1; gear <= kGears; ++gear) measured.key.push_back(rows.gear[gear]);
  return measured;
}

std::vector<Measured> BestByEnumeration(const Workspace& w, const BestQuery& query, std::size_t& allowed) {
  std::vector<Measured> all;
  plain::ForEachCombination(w, [&](const plain::Combination& combination) {
    if (!plain::CanBeFitted(w, combination.rows)) return;
    for (int gear = 1; gear <= kGears; ++gear) {
      const float error = combination.error[gear];
      const GearBounds& bounds = query.bounds[gear];
      if (query.within && std::fabs(error) > *query.within) return;
      if (bounds.held && (error < -bounds.below || error > bounds.above)) return;
      if (w.GearDriveTeeth(gear, combination.rows.gear[gear]) == 0) return;
    }
    all.push_back(Measure(w, query, combination));
  });
  allowed = all.size();
  std::sort(all.begin(), all.end(), [](const Measured& a, const Measured& b) { return a.key < b.key; });
  if (all.size() > static_cast<std::size_t>(query.count)) all.resize(static_cast<std::size_t>(query.count));
  return all;
}

BestQuery RandomQuery(RandomMachine& random, Rank rank) {
  BestQuery query;
  query.count = random.Chance(50) ? random.Pick(1, 5) : random.Pick(1, 60);
  query.rank = rank;
  if (random.Chance(50)) query.within = random.Pick(4, 120) / 4.0;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (random.Chance(5)) {
      query.bounds[gear] = {static_cast<double>(random.Pick(1, 9)), static_cast<double>(random.Pick(1, 9)),
                            true};
    }
  }
  for (int row = 1; row <= kPrimaryLimit; ++row) query.costs.primary[row] = random.Pick(0, 1);
  for (int row = 1; row <= kFinalLimit; ++row) query.costs.final[row] = random.Pick(0, 2);
  for (int row = 1; row <= kGearRowLimit; ++row) {
    for (const int gear : {1, 2, 5, 6}) query.costs.gear(gear, row) = random.Pick(0, 1);
    for (int fourth = 1; fourth <= kGearRowLimit; ++fourth)
      query.costs.joint(row, fourth) = random.Pick(0, 3);
  }
  return query;
}

class BestPlans : public testing::TestWithParam<Rank> {};

TEST_P(BestPlans, EqualThePlainEnumerationOnRandomMachines) {
  int cut = 0;
  int few = 0;
  int none = 0;
  for (std::uint32_t seed = 1; seed <= 800; ++seed) {
    RandomMachine random(seed + 1000 * static_cast<std::uint32_t>(GetParam()));
    const Workspace workspace = random.MakeSmall();
    const BestQuery query = RandomQuery(random, GetParam());
    std::size_t allowed = 0;
    const std::vector<Measured> expected = BestByEnumeration(workspace, query, allowed);
    const std::vector<BestPlan> found = FindBestPlans(workspace, query);
    ASSERT_EQ(found.size(), expected.size()) << "machine " << seed;
    for (std::size_t k = 0; k < found.size(); ++k) {
      std::vector<long long> rows = {found[k].rows.primary, found[k].rows.final};
      for (int gear = 1; gear <= kGears; ++gear) rows.push_back(found[k].rows.gear[gear]);
      const std::vector<long long> wanted(expected[k].key.begin() + 3, expected[k].key.end());
      ASSERT_EQ(rows, wanted) << "machine " << seed << ", plan " << k + 1;
      ASSERT_TRUE(found[k].measures == expected[k].measures) << "machine " << seed << ", plan " << k + 1;
    }
    none += expected.empty();
    few += !expected.empty() && allowed <= static_cast<std::size_t>(query.count);
    cut += allowed > static_cast<std::size_t>(query.count);
  }
  EXPECT_GT(cut, 150);
  EXPECT_GT(few, 30);
  EXPECT_GT(none, 30);
}

INSTANTIATE_TEST_SUITE_P(Ranks, BestPlans, testing::Values(Rank::Miss, Rank::Sum, Rank::Steps, Rank::Change));

}  // namespace
}  // namespace veldrin
