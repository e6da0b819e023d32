#include "plan/best/row_choices.h"

#include "calc/gear_speed.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace veldrin {

namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr int kThird = 3;
constexpr int kFourth = 4;

bool IsAllowed(const BestQuery& query, int gear, float error) {
  if (!std::isfinite(error)) return false;
  if (query.within && std::fabs(error) > *query.within) return false;
  return !query.bounds[gear].held || query.bounds[gear].Hold(error);
}

}  // namespace

PairTable::PairTable(const Workspace& workspace) : workspace_(workspace) {
  for (int gear = 1; gear <= kGears; ++gear) {
    GearPairs& pairs = pairs_[gear];
    const GearPairs all = PairsWithTeeth(workspace, gear);
    for (std::size_t k = 0; k < static_cast<std::size_t>(all.count); ++k) {
      if (all.drive[k] == 0) continue;
      const auto at = static_cast<std::size_t>(pairs.count++);
      pairs.row[at] = all.row[k];
      pairs.drive[at] = all.drive[k];
      pairs.driven[at] = all.driven[k];
      ratios_[gear][at] = all.drive[k] / all.driven[k];
    }
  }
}

RowChoices::RowChoices(const Workspace& workspace, const PairTable& pairs, const BestQuery& query,
                       int primary, int final) {
  const double speedBeforeGear = SpeedBeforeGear(workspace, primary, final);
  for (int gear = 1; gear <= kGears && fit_; ++gear) {
    LearnGear(workspace, pairs, query, gear, speedBeforeGear);
    fit_ = gears_[gear].count > 0;
  }
  if (!fit_) return;
  for (int gear = kGears - 1; gear >= 0; --gear) {
    const GearChoices& next = gears_[gear + 1];
    Measures& least = least_[gear];
    least = least_[gear + 1];
    if (gear + 1 == kThird) {
      least = least_[kFourth];
      BoundThirdAndFourth(pairs, query.costs, least);
      continue;
    }
    const auto nearer = [](const RowChoice& a, const RowChoice& b) { return a.miss < b.miss; };
    const auto cheaper = [](const RowChoice& a, const RowChoice& b) { return a.cost < b.cost; };
    const std::int64_t miss = std::min_element(next.begin(), next.end(), nearer)->miss;
    least.miss = std::max(least.miss, miss);
    least.sum += miss;
    if (gear + 1 != kFourth) least.changed += std::min_element(next.begin(), next.end(), cheaper)->cost;
  }
}

void RowChoices::LearnGear(const Workspace& workspace, const PairTable& pairs, const BestQuery& query,
                           int gear, double speedBeforeGear) {
  const GearPairs& of = pairs.Of(gear);
  GearChoices& choices = gears_[gear];
  const double request = workspace.SpeedRequest[gear];
  for (int pair = 0; pair < of.count; ++pair) {
    const auto k = static_cast<std::size_t>(pair);
    const auto error = static_cast<float>(GearSpeedOf(speedBeforeGear, of.drive[k], of.driven[k]) - request);
    if (!IsAllowed(query, gear, error)) continue;
    RowChoice& choice = choices.rows[static_cast<std::size_t>(choices.count++)];
    choice = {of.row[k], pair, MissUnits(error), query.costs.gear(gear, of.row[k])};
  }
  const bool byCost = query.rank == Rank::Change;
  const auto better = [byCost](const RowChoice& a, const RowChoice& b) {
    if (byCost && a.cost != b.cost) return a.cost < b.cost;
    return std::tie(a.miss, a.row) < std::tie(b.miss, b.row);
  };
  std::sort(choices.rows.begin(), choices.rows.begin() + choices.count, better);
}

/// The three are found on their own: one pair of rows may have the smallest miss, another the fewest parts.
void RowChoices::BoundThirdAndFourth(const PairTable& pairs, const PartCosts& costs, Measures& least) {
  std::int64_t miss = kMost;
  std::int64_t sum = kMost;
  std::int64_t parts = kMost;
  for (const RowChoice& third : gears_[kThird]) {
    for (const RowChoice& fourth : gears_[kFourth]) {
      if (!pairs.Allows(third.row, fourth.row)) continue;
      miss = std::min(miss, std::max(third.miss, fourth.miss));
      sum = std::min(sum, third.miss + fourth.miss);
      parts = std::min<std::int64_t>(parts, costs.joint(third.row, fourth.row));
    }
  }
  fit_ = miss != kMost;
  if (!fit_) return;
  least.miss = std::max(least.miss, miss);
  least.sum += sum;
  least.changed += parts;
}

}  // namespace veldrin
