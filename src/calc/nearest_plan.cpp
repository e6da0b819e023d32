#include "calc/nearest_plan.h"

#include "calc/gear_conflicts.h"
#include "calc/gear_speed.h"
#include "calc/pairs_of_gear.h"
#include "model/list_tables.h"

#include <array>
#include <cmath>
#include <limits>

namespace veldrin {

namespace {

constexpr float kNone = std::numeric_limits<float>::infinity();
constexpr int kThird = 3;
constexpr int kFourth = 4;

/// A gear's pairs at one primary and final row.
struct GearErrors {
  std::array<float, kGearRowLimit> speed;  // km/h
  std::array<float, kGearRowLimit> error;  // km/h, speed less request
  /// The pair nearest to the request, and the nearest that keeps the gear's bounds; -1 for none.
  int nearest = -1;
  int nearestHeld = -1;
  bool inBounds = false;
};

/// One question of "which combination is nearest", as it is asked of all of them.
struct Quest {
  bool holds;         // held gears keep their bounds and do not count
  bool asksMatrix;    // pairs of 3rd and 4th gear that exclude each other are left out
  bool tellsOwnPair;  // only a pair that is excluded is of interest
  std::optional<NearPlan> best;
};

float MissOf(const GearErrors& errors, int k) {
  return k < 0 ? kNone : std::fabs(errors.error[static_cast<std::size_t>(k)]);
}

class NearestWalk {
 public:
  NearestWalk(const Workspace& workspace, const SearchBounds& bounds)
      : workspace_(workspace), bounds_(bounds) {
    for (int gear = 1; gear <= kGears; ++gear) pairs_[gear] = PairsWithTeeth(workspace, gear);
    for (int third = 0; third < pairs_[kThird].count; ++third) {
      for (int fourth = 0; fourth < pairs_[kFourth].count; ++fourth) {
        const bool allowed = workspace.M34Matrix(RowOf(kThird, third), RowOf(kFourth, fourth)) != kEndMark;
        allowed_[Index(third)][Index(fourth)] = allowed;
        fits_[kThird][Index(third)] = fits_[kThird][Index(third)] || allowed;
        fits_[kFourth][Index(fourth)] = fits_[kFourth][Index(fourth)] || allowed;
      }
    }
    for (int gear = 1; gear <= kGears; ++gear) {
      if (gear != kThird && gear != kFourth) fits_[gear].fill(true);
      hasHeld_ = hasHeld_ || bounds[gear].held;
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
    const float own = found.nearestHeld ? found.nearestHeld->largest : kNone;
    if (free_.best && free_.best->largest < own) found.nearestForbidden = free_.best;
    found.conflicts = conflicts_.Smallest();
    return found;
  }

 private:
  static std::size_t Index(int k) { return static_cast<std::size_t>(k); }
  int RowOf(int gear, int k) const { return pairs_[gear].row[Index(k)]; }

  void LookAt(int primary, int final) {
    const double speedBeforeGear = SpeedBeforeGear(workspace_, primary, final);
    int inBounds = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      LearnGear(gear, speedBeforeGear);
      NoteReach(gear, primary, final);
      if (errors_[gear].inBounds) inBounds |= GearConflicts::Bit(gear);
    }
    conflicts_.Note(inBounds, [this] { return HasAllowedPairInBounds(); });
    Ask(all_, primary, final);
    if (hasHeld_) Ask(held_, primary, final);
    Ask(free_, primary, final);
  }

  void LearnGear(int gear, double speedBeforeGear) {
    const GearPairs& pairs = pairs_[gear];
    const GearBounds& bounds = bounds_[gear];
    GearErrors& errors = errors_[gear];
    const double request = workspace_.SpeedRequest[gear];
    for (std::size_t k = 0; k < Index(pairs.count); ++k) {
      const double speed = GearSpeedOf(speedBeforeGear, pairs.drive[k], pairs.driven[k]);
      errors.speed[k] = static_cast<float>(speed);
      errors.error[k] = static_cast<float>(speed - request);
    }
    errors.nearest = -1;
    errors.nearestHeld = -1;
    errors.inBounds = false;
    float miss = kNone;
    float heldMiss = kNone;
    for (int k = 0; k < pairs.count; ++k) {
      const float error = errors.error[Index(k)];
      const bool inBounds = bounds.Hold(error);
      errors.inBounds = errors.inBounds || inBounds;
      if (std::fabs(error) < miss) {
        miss = std::fabs(error);
        errors.nearest = k;
      }
      if ((inBounds || !bounds.held) && std::fabs(error) < heldMiss) {
        heldMiss = std::fabs(error);
        errors.nearestHeld = k;
      }
    }
  }

  void NoteReach(int gear, int primary, int final) {
    GearReach& reach = reach_[gear];
    for (int k = 0; k < pairs_[gear].count; ++k) {
      const float error = errors_[gear].error[Index(k)];
      if (!fits_[gear][Index(k)] || !std::isfinite(error)) continue;
      const float miss = std::fabs(error);
      const bool met = errors_[gear].speed[Index(k)] == workspace_.SpeedRequest[gear];
      const bool nearerBelow = (error <= 0 || met) && (!reach.below || miss < std::fabs(reach.below->error));
      const bool nearerAbove = (error >= 0 || met) && (!reach.above || miss < std::fabs(reach.above->error));
      if (!nearerBelow && !nearerAbove) continue;
      const ReachedSpeed reached{errors_[gear].speed[Index(k)], error, primary, final, RowOf(gear, k)};
      if (nearerBelow) reach.below = reached;
      if (nearerAbove) reach.above = reached;
    }
  }

  bool HasAllowedPairInBounds() const {
    for (int third = 0; third < pairs_[kThird].count; ++third) {
      if (!bounds_[kThird].Hold(errors_[kThird].error[Index(third)])) continue;
      for (int fourth = 0; fourth < pairs_[kFourth].count; ++fourth) {
        if (allowed_[Index(third)][Index(fourth)] &&
            bounds_[kFourth].Hold(errors_[kFourth].error[Index(fourth)])) {
          return true;
        }
      }
    }
    return false;
  }

  bool Counts(const Quest& quest, int gear) const { return !(quest.holds && bounds_[gear].held); }

  bool MayTake(const Quest& quest, int gear, int k) const {
    const float error = errors_[gear].error[Index(k)];
    return std::isfinite(error) && (Counts(quest, gear) || bounds_[gear].Hold(error));
  }

  /// Looks for a combination of these primary and final rows that is nearer than the best so far.
  void Ask(Quest& quest, int primary, int final) {
    std::array<int, kGears + 1> taken{};
    float largest = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      const GearErrors& errors = errors_[gear];
      taken[Index(gear)] = quest.holds ? errors.nearestHeld : errors.nearest;
      const float miss = MissOf(errors, taken[Index(gear)]);
      if (miss == kNone) return;
      if (Counts(quest, gear)) largest = std::max(largest, miss);
    }
    if (quest.best && largest > quest.best->largest) return;
    const bool excluded = !allowed_[Index(taken[kThird])][Index(taken[kFourth])];
    if (quest.tellsOwnPair && !excluded) return;
    if (quest.asksMatrix && excluded && !TakeAllowedPair(quest, taken)) return;
    Keep(quest, primary, final, taken);
  }

  /// Replaces the pairs of 3rd and 4th gear by the best that can be fitted together: those with the smallest
  /// largest miss of all gears that count, then with the smallest sum.
  bool TakeAllowedPair(const Quest& quest, std::array<int, kGears + 1>& taken) const {
    float others = 0;
    for (const int gear : {1, 2, 5, 6}) {
      if (Counts(quest, gear)) others = std::max(others, MissOf(errors_[gear], taken[Index(gear)]));
    }
    float best = kNone;
    double bestSum = 0;
    for (int third = 0; third < pairs_[kThird].count; ++third) {
      if (!MayTake(quest, kThird, third)) continue;
      for (int fourth = 0; fourth < pairs_[kFourth].count; ++fourth) {
        if (!allowed_[Index(third)][Index(fourth)] || !MayTake(quest, kFourth, fourth)) continue;
        const float missOfThird = MissOf(errors_[kThird], third);
        const float missOfFourth = MissOf(errors_[kFourth], fourth);
        float largest = others;
        if (Counts(quest, kThird)) largest = std::max(largest, missOfThird);
        if (Counts(quest, kFourth)) largest = std::max(largest, missOfFourth);
        const double sum = static_cast<double>(missOfThird) + missOfFourth;
        if (largest > best || (largest == best && sum >= bestSum)) continue;
        best = largest;
        bestSum = sum;
        taken[kThird] = third;
        taken[kFourth] = fourth;
      }
    }
    return best != kNone;
  }

  void Keep(Quest& quest, int primary, int final, const std::array<int, kGears + 1>& taken) const {
    NearPlan plan;
    plan.rows.primary = static_cast<std::int16_t>(primary);
    plan.rows.final = static_cast<std::int16_t>(final);
    for (int gear = 1; gear <= kGears; ++gear) {
      const int k = taken[Index(gear)];
      plan.rows.gear[gear] = static_cast<std::int16_t>(RowOf(gear, k));
      plan.error[gear] = errors_[gear].error[Index(k)];
      const float miss = std::fabs(plan.error[gear]);
      if (Counts(quest, gear)) plan.largest = std::max(plan.largest, miss);
      plan.sum += miss;
    }
    const bool nearer = !quest.best || plan.largest < quest.best->largest ||
                        (plan.largest == quest.best->largest && plan.sum < quest.best->sum);
    if (nearer) quest.best = plan;
  }

  const Workspace& workspace_;
  const SearchBounds& bounds_;
  bool hasHeld_ = false;
  Table<GearPairs, 1, kGears> pairs_;
  /// By the pairs of 3rd and 4th gear; and which pairs of a gear can be fitted at all.
  std::array<std::array<bool, kGearRowLimit>, kGearRowLimit> allowed_{};
  Table<std::array<bool, kGearRowLimit>, 1, kGears> fits_;
  Table<GearErrors, 1, kGears> errors_;
  Table<GearReach, 1, kGears> reach_;
  GearConflicts conflicts_;
  Quest all_{false, true, false, {}};
  Quest held_{true, true, false, {}};
  Quest free_{true, false, true, {}};
};

}  // namespace

NearestPlans FindNearestPlans(const Workspace& workspace, const SearchBounds& bounds) {
  return NearestWalk(workspace, bounds).Walk();
}

}  // namespace veldrin
