// The best of all combinations that can be fitted, exact, without trying them all.
//
// A combination's miss is the largest of its gears', which do not depend on each other but for the pairs of
// 3rd and 4th gear that exclude each other. So for every primary and final row there is a bound that no
// combination with them beats; what cannot come among the best by its bound is not looked at.
#pragma once

#include "calc/search_bounds.h"
#include "plan/best/part_costs.h"
#include "plan/best/rank_key.h"

#include <optional>
#include <vector>

namespace veldrin {

struct BestQuery {
  int count = 1;  // plans wanted, 1 and more
  Rank rank = Rank::Miss;
  /// No gear may miss its request by more, in km/h.
  std::optional<double> within;
  /// Bounds of single gears beside it; only those that are held count.
  SearchBounds bounds;
  PartCosts costs;
};

struct BestPlan {
  PlanRows rows;
  Measures measures;
};

/// The best combinations for the requests of `workspace`, best first; those equal in rank come in walking
/// order. Fewer than wanted where there are no more. Rows without teeth are passed over. Raises nothing.
std::vector<BestPlan> FindBestPlans(const Workspace& workspace, const BestQuery& query);

}  // namespace veldrin
