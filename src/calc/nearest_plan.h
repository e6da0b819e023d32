// What comes nearest to six request speeds, and why a search found nothing: for whoever tells the user.
//
// A search tries the nearest pair of each gear alone and ends at a tolerance. Here all combinations that can
// be fitted are looked at, once, by the speeds of the search, so that what is said is exact.
#pragma once

#include "calc/gear_conflicts.h"
#include "calc/plan_rows.h"
#include "calc/search_bounds.h"

#include <optional>
#include <vector>

namespace veldrin {

/// A speed that a gear can reach, and the rows that reach it.
struct ReachedSpeed {
  float speed = 0;  // km/h
  float error = 0;  // km/h, speed less request
  int primary = 0;
  int final = 0;
  int row = 0;
};

/// The speeds of a gear nearest to its request, whatever the other gears do; nothing where there is none on
/// that side. A speed that equals the request in 32 bits is both.
struct GearReach {
  std::optional<ReachedSpeed> below;
  std::optional<ReachedSpeed> above;
};

/// A combination and what it misses.
struct NearPlan {
  PlanRows rows;
  Table<float, 1, kGears> error;  // km/h, speed less request
  /// The largest miss, in km/h, of the gears that count: all, or those that are not held.
  float largest = 0;
  double sum = 0;  // km/h, of the misses of all gears
};

struct NearestPlans {
  Table<GearReach, 1, kGears> reach;
  /// Of all combinations that can be fitted, the one with the smallest largest miss; of those that are equal
  /// in it the smallest sum, then the first in the search's order. Nothing when no combination can be fitted:
  /// a gear without a pair, or all pairs of 3rd and 4th gear excluded.
  std::optional<NearPlan> nearest;
  /// The same among those whose held gears keep their bounds: its largest miss is the smallest common
  /// tolerance of the other gears with which there is a plan. The same as `nearest` where no gear is held.
  std::optional<NearPlan> nearestHeld;
  /// What `nearestHeld` would be if no pairs of 3rd and 4th gear excluded each other; there only when its own
  /// pair is excluded and it comes nearer.
  std::optional<NearPlan> nearestForbidden;
  /// The smallest sets of gears that stand in each other's way, all of the same size. Empty when some
  /// combination keeps all bounds: a search without a plan then found fewer plans than were wanted, or none
  /// because the nearest pairs of 3rd and 4th gear exclude each other and it tries no others.
  std::vector<Conflict> conflicts;
};

/// Looks at all combinations for the requests of `workspace`, with the bounds of the search that was made.
/// Rows without driven teeth, and those that miss by 1e30 km/h and more, are passed over. Raises nothing.
NearestPlans FindNearestPlans(const Workspace& workspace, const SearchBounds& bounds);

}  // namespace veldrin
