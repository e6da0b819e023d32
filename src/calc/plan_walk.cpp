#include "calc/plan_walk.h"

#include "calc/gear_speed.h"
#include "calc/plan_rows.h"
#include "model/list_tables.h"
#include "runtime/conversion.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veldrin {

PlanWalk::PlanWalk(const Workspace& workspace, const Table<Reach, 1, kGears>& reach, FirstPass firstPass)
    : workspace_(workspace), reach_(reach), firstPass_(std::move(firstPass)) {
  for (int gear = 1; gear <= kGears; ++gear) pairs_[static_cast<std::size_t>(gear - 1)] = PairsOf(gear);
  const int count = workspace_.PrimaryCount * FinalRowCount(workspace_);
  combinations_.resize(static_cast<std::size_t>(count));
  needed_.assign(static_cast<std::size_t>(count), 1);
}

PlanWalk::GearPairs PlanWalk::PairsOf(int gear) const {
  GearPairs pairs;
  const int rows = std::min<int>(workspace_.GearRows, kGearRowLimit);
  for (int row = 1; row <= rows; ++row) {
    if (workspace_.GearTable(gear, row) == kNoPair) continue;
    const auto k = static_cast<std::size_t>(pairs.count++);
    pairs.row[k] = row;
    pairs.drive[k] = workspace_.GearDriveTeeth(gear, row);
    pairs.driven[k] = workspace_.GearDrivenTeeth(gear, row);
    pairs.lacksTeeth = pairs.lacksTeeth || pairs.driven[k] == 0;
    if (pairs.lacksTeeth) continue;
    const double ratio = pairs.drive[k] / pairs.driven[k];
    pairs.lowestRatio = k == 0 ? ratio : std::min(pairs.lowestRatio, ratio);
    pairs.highestRatio = k == 0 ? ratio : std::max(pairs.highestRatio, ratio);
  }
  return pairs;
}

/// Whether every row of the gear is for certain too slow or too fast for any pass. The speeds here are not
/// the rule's to the last bit, so a row near the border is not said to be beyond it.
bool PlanWalk::IsBeyondReach(double speedBeforeGear, int gear) const {
  constexpr double kSlack = 1e-6;
  constexpr double kSurelySingle = 1e38;
  const GearPairs& pairs = pairs_[static_cast<std::size_t>(gear - 1)];
  const double request = workspace_.SpeedRequest[gear];
  const double one = GearSpeedOf(speedBeforeGear, pairs.lowestRatio, 1);
  const double other = GearSpeedOf(speedBeforeGear, pairs.highestRatio, 1);
  // Errors beyond 32 bits are for the rows to raise.
  if (std::max(std::fabs(one), std::fabs(other)) > kSurelySingle) return false;
  const double slack = kSlack * (std::fabs(one) + std::fabs(other) + std::fabs(request) + 1);
  return std::max(one, other) + slack < request - reach_[gear].below ||
         std::min(one, other) - slack > request + reach_[gear].above;
}

/// Computes the errors of the next gear; gives the first pass in which one of its rows is near enough.
int PlanWalk::LearnGear(Combination& combination, double speedBeforeGear) {
  const int gear = ++combination.gearsKnown;
  const auto g = static_cast<std::size_t>(gear - 1);
  const GearPairs& pairs = pairs_[g];
  auto& errors = combination.errors[g];
  const double request = workspace_.SpeedRequest[gear];
  if (pairs.lacksTeeth) {
    // The division that cannot be done is to raise its fault.
    for (int k = 0; k < pairs.count; ++k) {
      GearSpeed(workspace_, speedBeforeGear, gear, pairs.row[static_cast<std::size_t>(k)]);
    }
  }
  if (workspace_.GearRows > kGearRowLimit) Raise(kFaultSubscript);
  if (pairs.count == 0 || IsBeyondReach(speedBeforeGear, gear)) return kNoPass;
  for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
    const double speed = GearSpeedOf(speedBeforeGear, pairs.drive[k], pairs.driven[k]);
    errors[k] = ToSingle(speed - request);
  }
  int first = kNoPass;
  for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
    first = std::min(first, firstPass_(gear, errors[k]));
  }
  return first;
}

/// Within a gear the row nearest the request is meant: a candidate takes over when it is strictly nearer
/// than the one just before it.
/// Kept: it is not compared with the nearest so far, so a table out of order may hide its nearest row.
int PlanWalk::BestRow(const Combination& combination, int gear, int pass) const {
  const auto g = static_cast<std::size_t>(gear - 1);
  int best = 0;
  float before = 0;
  for (std::size_t k = 0; k < static_cast<std::size_t>(pairs_[g].count); ++k) {
    const float error = combination.errors[g][k];
    if (firstPass_(gear, error) > pass) continue;
    const float candidate = std::fabs(error);
    if (best == 0 || candidate < before) best = pairs_[g].row[k];
    before = candidate;
  }
  return best;
}

void PlanWalk::AddPlan(const Combination& combination, int primary, int final, int pass,
                       Workspace& found) const {
  const int third = BestRow(combination, 3, pass);
  const int fourth = BestRow(combination, 4, pass);
  if (workspace_.M34Matrix(third, fourth) == kEndMark) return;
  PlanRows plan;
  plan.primary = static_cast<std::int16_t>(primary);
  plan.final = static_cast<std::int16_t>(final);
  for (int gear = 1; gear <= kGears; ++gear) {
    plan.gear[gear] = static_cast<std::int16_t>(BestRow(combination, gear, pass));
  }
  ++found.PlanCount;
  found.PlanList[found.PlanCount] = ListText(plan);
}

void PlanWalk::Pass(int pass, Workspace& found, const Blink& blink) {
  const int finals = FinalRowCount(workspace_);
  std::size_t at = 0;
  for (int primary = 1; primary <= workspace_.PrimaryCount; ++primary) {
    for (int final = 1; final <= finals; ++final, ++at) {
      blink(final);
      if (needed_[at] > pass) continue;
      Combination& combination = combinations_[at];
      if (combination.gearsKnown < kGears) {
        const double speedBeforeGear = SpeedBeforeGear(workspace_, primary, final);
        while (combination.gearsKnown < kGears && needed_[at] <= pass) {
          const int first = LearnGear(combination, speedBeforeGear);
          needed_[at] = static_cast<std::int8_t>(std::max<int>(needed_[at], first));
        }
      }
      if (needed_[at] <= pass) AddPlan(combination, primary, final, pass, found);
    }
  }
}

}  // namespace veldrin
