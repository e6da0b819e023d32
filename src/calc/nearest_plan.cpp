#include "calc/nearest_plan.h"

#include "calc/gear_errors.h"
#include "calc/gear_speed.h"
#include "model/list_tables.h"

#include <array>
#include <cmath>

namespace veldrin {

namespace {

constexpr int kThird = 3;
constexpr int kFourth = 4;

/// The pair taken in each gear.
using Taken = Table<ExactPair, 1, kGears>;

/// One question of "which combination is nearest", as it is asked of all of them.
struct Quest {
  bool holds;         // held gears keep their bounds and do not count
  bool asksMatrix;    // pairs of 3rd and 4th gear that exclude each other are left out
  bool tellsOwnPair;  // only a pair that is excluded is of interest
  std::optional<NearPlan> best;
};

class NearestWalk {
 public:
  NearestWalk(const Workspace& workspace, const SearchBounds& bounds) : workspace_(workspace) {
    for (int gear = 1; gear <= kGears; ++gear) {
      errors_[gear] = GearErrors(PairsWithTeeth(workspace, gear), bounds[gear], workspace.SpeedRequest[gear]);
      hasHeld_ = hasHeld_ || bounds[gear].held;
      fits_[gear].fill(gear != kThird && gear != kFourth);
    }
    for (int third = 0; third < Count(kThird); ++third) {
      for (int fourth = 0; fourth < Count(kFourth); ++fourth) {
        const bool allowed = workspace.M34Matrix(RowOf(kThird, third), RowOf(kFourth, fourth)) != kEndMark;
        allowed_[Index(third)][Index(fourth)] = allowed;
        hasExcluded_ = hasExcluded_ || !allowed;
        fits_[kThird][Index(third)] = fits_[kThird][Index(third)] || allowed;
        fits_[kFourth][Index(fourth)] = fits_[kFourth][Index(fourth)] || allowed;
      }
    }
  }

  NearestPlans Walk() {
    const int finals = FinalRowCount(workspace_);
    for (int primary = 1; primary <= workspace_.PrimaryCount; ++primary) {
      for (int final = 1; final <= finals; ++final) LookAt(primary, final);
    }
    NearestPlans found;
    found.reach = reach_;
    found.nearest = all_.best;
    found.nearestHeld = hasHeld_ ? held_.best : all_.best;
    const float own = found.nearestHeld ? found.nearestHeld->largest : kFarAway;
    if (free_.best && free_.best->largest < own) found.nearestForbidden = free_.best;
    found.conflicts = conflicts_.Smallest();
    return found;
  }

 private:
  static std::size_t Index(int k) { return static_cast<std::size_t>(k); }
  int Count(int gear) const { return errors_[gear].Pairs().count; }
  int RowOf(int gear, int k) const { return errors_[gear].Pairs().row[Index(k)]; }

  void LookAt(int primary, int final) {
    const double speedBeforeGear = SpeedBeforeGear(workspace_, primary, final);
    // Rows of equal ratios stand side by side, and what is no nearer is not wanted again.
    if (speedBeforeGear == lastLookedAt_) return;
    lastLookedAt_ = speedBeforeGear;
    int inBounds = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      errors_[gear].Estimate(speedBeforeGear);
      NoteReach(gear, primary, final);
      if (errors_[gear].InBounds()) inBounds |= GearConflicts::Bit(gear);
    }
    conflicts_.Note(inBounds, [this] { return HasAllowedPairInBounds(); });
    Ask(all_, primary, final);
    if (hasHeld_) Ask(held_, primary, final);
    if (hasExcluded_) Ask(free_, primary, final);
  }

  void NoteReach(int gear, int primary, int final) {
    GearReach& reach = reach_[gear];
    const auto missOf = [](const std::optional<ReachedSpeed>& reached) {
      return reached ? std::fabs(reached->error) : kFarAway;
    };
    const GearErrors& errors = errors_[gear];
    if (!errors.MayReachNearer(missOf(reach.below), missOf(reach.above))) return;
    for (int k = 0; k < Count(gear); ++k) {
      const bool mayBeNearer = errors.MayReachNearer(k, missOf(reach.below), missOf(reach.above));
      if (!mayBeNearer || !fits_[gear][Index(k)] || !errors.MayTake(k, false)) continue;
      const ExactPair pair = errors.Exact(k);
      const bool met = pair.speed == workspace_.SpeedRequest[gear];
      const float miss = std::fabs(pair.error);
      const ReachedSpeed reached{pair.speed, pair.error, primary, final, RowOf(gear, k)};
      if ((pair.error <= 0 || met) && miss < missOf(reach.below)) reach.below = reached;
      if ((pair.error >= 0 || met) && miss < missOf(reach.above)) reach.above = reached;
    }
  }

  bool HasAllowedPairInBounds() {
    errors_[kThird].MakeExact();
    errors_[kFourth].MakeExact();
    for (int third = 0; third < Count(kThird); ++third) {
      if (!errors_[kThird].MayTake(third, true)) continue;
      for (int fourth = 0; fourth < Count(kFourth); ++fourth) {
        if (allowed_[Index(third)][Index(fourth)] && errors_[kFourth].MayTake(fourth, true)) return true;
      }
    }
    return false;
  }

  bool Counts(const Quest& quest, int gear) const { return !(quest.holds && errors_[gear].Holds()); }

  bool MayTake(const Quest& quest, int gear, int k) const {
    return errors_[gear].MayTake(k, !Counts(quest, gear));
  }

  /// Looks for a combination of these primary and final rows that is nearer than the best so far.
  void Ask(Quest& quest, int primary, int final) {
    if (!IsPromising(quest)) return;
    Taken taken;
    for (int gear = 1; gear <= kGears; ++gear) taken[gear] = errors_[gear].Nearest(!Counts(quest, gear));
    const bool excluded = !allowed_[Index(taken[kThird].pair)][Index(taken[kFourth].pair)];
    if (quest.tellsOwnPair && !excluded) return;
    if (quest.asksMatrix && excluded && !TakeAllowedPair(quest, taken)) return;
    Keep(quest, primary, final, taken);
  }

  /// Whether these primary and final rows may come as near as the best so far.
  bool IsPromising(const Quest& quest) const {
    float largest = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      const GearErrors& errors = errors_[gear];
      const float miss = quest.holds ? errors.HeldMiss() : errors.Miss();
      if (miss >= kFarAway) return false;
      if (Counts(quest, gear)) largest = std::max(largest, miss - errors.Slack());
    }
    // Excluded pairs are told where they come nearer than what can be fitted.
    const Quest& fitted = hasHeld_ ? held_ : all_;
    if (quest.tellsOwnPair && fitted.best && largest > fitted.best->largest) return false;
    return !quest.best || largest <= quest.best->largest;
  }

  /// Replaces the pairs of 3rd and 4th gear by the best that can be fitted together: those with the smallest
  /// largest miss of all gears that count, then with the smallest sum.
  bool TakeAllowedPair(const Quest& quest, Taken& taken) {
    errors_[kThird].MakeExact();
    errors_[kFourth].MakeExact();
    float others = 0;
    for (const int gear : {1, 2, 5, 6}) {
      if (Counts(quest, gear)) others = std::max(others, std::fabs(taken[gear].error));
    }
    float best = kFarAway;
    double bestSum = 0;
    for (int third = 0; third < Count(kThird); ++third) {
      if (!MayTake(quest, kThird, third)) continue;
      for (int fourth = 0; fourth < Count(kFourth); ++fourth) {
        if (!allowed_[Index(third)][Index(fourth)] || !MayTake(quest, kFourth, fourth)) continue;
        const float missOfThird = errors_[kThird].Miss(third);
        const float missOfFourth = errors_[kFourth].Miss(fourth);
        float largest = others;
        if (Counts(quest, kThird)) largest = std::max(largest, missOfThird);
        if (Counts(quest, kFourth)) largest = std::max(largest, missOfFourth);
        const double sum = static_cast<double>(missOfThird) + missOfFourth;
        if (largest > best || (largest == best && sum >= bestSum)) continue;
        best = largest;
        bestSum = sum;
        taken[kThird] = errors_[kThird].Exact(third);
        taken[kFourth] = errors_[kFourth].Exact(fourth);
      }
    }
    return best != kFarAway;
  }

  void Keep(Quest& quest, int primary, int final, const Taken& taken) const {
    NearPlan plan;
    plan.rows.primary = static_cast<std::int16_t>(primary);
    plan.rows.final = static_cast<std::int16_t>(final);
    for (int gear = 1; gear <= kGears; ++gear) {
      plan.rows.gear[gear] = static_cast<std::int16_t>(RowOf(gear, taken[gear].pair));
      plan.error[gear] = taken[gear].error;
      const float miss = std::fabs(plan.error[gear]);
      if (Counts(quest, gear)) plan.largest = std::max(plan.largest, miss);
      plan.sum += miss;
    }
    const bool nearer = !quest.best || plan.largest < quest.best->largest ||
                        (plan.largest == quest.best->largest && plan.sum < quest.best->sum);
    if (nearer) quest.best = plan;
  }

  const Workspace& workspace_;
  bool hasHeld_ = false;
  bool hasExcluded_ = false;
  Table<GearErrors, 1, kGears> errors_;
  /// By the pairs of 3rd and 4th gear; and which pairs of a gear can be fitted at all.
  std::array<std::array<bool, kGearRowLimit>, kGearRowLimit> allowed_{};
  Table<std::array<bool, kGearRowLimit>, 1, kGears> fits_;
  Table<GearReach, 1, kGears> reach_;
  GearConflicts conflicts_;
  std::optional<double> lastLookedAt_;
  Quest all_{false, true, false, {}};
  Quest held_{true, true, false, {}};
  Quest free_{true, false, true, {}};
};

}  // namespace

NearestPlans FindNearestPlans(const Workspace& workspace, const SearchBounds& bounds) {
  return NearestWalk(workspace, bounds).Walk();
}

}  // namespace veldrin
