#include "calc/plan_walk.h"

#include "calc/gear_speed.h"
#include "calc/plan_rows.h"
#include "runtime/conversion.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

PlanWalk::PlanWalk(const Workspace& workspace, const PassRules& rules)
    : workspace_(workspace), rules_(rules) {
  for (int gear = 1; gear <= kGears; ++gear) {
    pairs_[gear] = PairsOf(workspace, gear);
    lanes_[gear] = RowLanes(pairs_[gear], rules[gear], workspace.SpeedRequest[gear]);
    // A gear without a pair abandons the combination and cannot fault.
    if (pairs_[gear].count > 0) faultless_ = std::min(faultless_, lanes_[gear].Most());
  }
  if (workspace.GearRows > kGearRowLimit) faultless_ = -1;
  combinations_.resize(static_cast<std::size_t>(workspace_.PrimaryCount * FinalRowCount(workspace_)));
}

void PlanWalk::Visit(Combination& combination, int primary, int final, int pass, Workspace& found) {
  if (combination.gearsKnown < kGears) {
    const double speedBeforeGear = SpeedBeforeGear(workspace_, primary, final);
    // Where nothing can fault nobody sees when a gear is looked at, and once is enough.
    const bool atOnce = std::fabs(speedBeforeGear) <= faultless_;
    const int upTo = atOnce ? kNoPass - 1 : pass;
    while (combination.gearsKnown < kGears && combination.needed <= upTo) {
      const int first = FirstPass(++combination.gearsKnown, speedBeforeGear);
      combination.needed = static_cast<std::int8_t>(std::max<int>(combination.needed, first));
    }
  }
  if (combination.needed <= pass) AddPlan(primary, final, pass, found);
}

/// The first pass in which one of the gear's rows is near enough.
int PlanWalk::FirstPass(int gear, double speedBeforeGear) const {
  const int first = lanes_[gear].FirstPass(speedBeforeGear);
  if (first != RowLanes::kAskRule && workspace_.GearRows <= kGearRowLimit) return first;
  return FirstPassByRows(gear, speedBeforeGear);
}

int PlanWalk::FirstPassByRows(int gear, double speedBeforeGear) const {
  const GearPairs& pairs = pairs_[gear];
  if (pairs.lacksTeeth) {
    // The division that cannot be done is to raise its fault.
    for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
      GearSpeed(workspace_, speedBeforeGear, gear, pairs.row[k]);
    }
  }
  if (workspace_.GearRows > kGearRowLimit) Raise(kFaultSubscript);
  int first = kNoPass;
  for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
    const double speed = GearSpeedOf(speedBeforeGear, pairs.drive[k], pairs.driven[k]);
    first = std::min(first, rules_[gear].FirstPass(ToSingle(speed - workspace_.SpeedRequest[gear])));
  }
  return first;
}

/// Within a gear the row nearest the request is meant: a candidate takes over when it is strictly nearer
/// than the one just before it.
/// Kept: it is not compared with the nearest so far, so a table out of order may hide its nearest row.
int PlanWalk::BestRow(int gear, double speedBeforeGear, int pass) const {
  const GearPairs& pairs = pairs_[gear];
  int best = 0;
  float before = 0;
  for (std::size_t k = 0; k < static_cast<std::size_t>(pairs.count); ++k) {
    const double speed = GearSpeedOf(speedBeforeGear, pairs.drive[k], pairs.driven[k]);
    const float error = ToSingle(speed - workspace_.SpeedRequest[gear]);
    if (rules_[gear].FirstPass(error) > pass) continue;
    const float candidate = std::fabs(error);
    if (best == 0 || candidate < before) best = pairs.row[k];
    before = candidate;
  }
  return best;
}

void PlanWalk::AddPlan(int primary, int final, int pass, Workspace& found) const {
  const double speedBeforeGear = SpeedBeforeGear(workspace_, primary, final);
  PlanRows plan;
  plan.primary = static_cast<std::int16_t>(primary);
  plan.final = static_cast<std::int16_t>(final);
  for (int gear = 1; gear <= kGears; ++gear) {
    plan.gear[gear] = static_cast<std::int16_t>(BestRow(gear, speedBeforeGear, pass));
  }
  if (workspace_.M34Matrix(plan.gear[3], plan.gear[4]) == kEndMark) return;
  ++found.PlanCount;
  found.PlanList[found.PlanCount] = ListText(plan);
}

}  // namespace veldrin
