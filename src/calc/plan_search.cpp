#include "calc/plan_search.h"

#include "calc/search_bounds.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

/// Sets the later ones of equal plans to the empty text and counts them.
int EmptyDuplicates(Workspace& workspace) {
  int removed = 0;
  for (int i = 1; i < workspace.PlanCount; ++i) {
    for (int j = i + 1; j <= workspace.PlanCount; ++j) {
      if (workspace.PlanList[i] != workspace.PlanList[j]) continue;
      ++removed;
      workspace.PlanList[j].clear();
    }
  }
  return removed;
}

/// Closes the gaps.
/// Kept: an empty slot that moved into the place just looked at is not looked at again, and the walk goes on
/// to the count as it stood before; so some empty slots may stay in the list.
void CompactPlans(Workspace& workspace) {
  const int limit = workspace.PlanCount;
  for (int i = 1; i <= limit; ++i) {
    if (!workspace.PlanList[i].empty()) continue;
    if (i == workspace.PlanCount) {
      --workspace.PlanCount;
      return;
    }
    for (int k = i; k < workspace.PlanCount; ++k) workspace.PlanList[k] = workspace.PlanList[k + 1];
    --workspace.PlanCount;
  }
}

}  // namespace

bool SearchAuto(Workspace& workspace, int mainGear, const Blink& blink) {
  workspace.PlanCount = 0;
  Table<Reach, 1, kGears> reach;
  for (int gear = 1; gear <= kGears; ++gear) reach[gear] = {kAutoPasses, kAutoPasses};
  PlanWalk walk(workspace, reach, [mainGear](int gear, float error) {
    const float distance = std::fabs(error);
    if (distance <= 1) return 1;
    if (gear == mainGear || !(distance <= kAutoPasses)) return kNoPass;
    return static_cast<int>(std::ceil(distance));
  });
  for (int tolerance = 1; tolerance <= kAutoPasses; ++tolerance) {
    walk.Pass(tolerance, workspace, blink);
    if (EmptyDuplicates(workspace) > 0) CompactPlans(workspace);
    if (workspace.PlanCount >= workspace.MinPlan) return true;
  }
  return false;
}

bool SearchMixed(Workspace& workspace, const Table<bool, 1, kGears>& manual, const Blink& blink) {
  workspace.PlanCount = 0;
  const Table<std::int16_t, 1, kGears> minus = workspace.ToleranceMinus;
  const Table<std::int16_t, 1, kGears> plus = workspace.TolerancePlus;
  Table<Reach, 1, kGears> reach;
  for (int gear = 1; gear <= kGears; ++gear) {
    reach[gear] = {static_cast<double>(minus[gear]) + kMixedPasses, static_cast<double>(plus[gear]) + 1};
  }
  PlanWalk walk(workspace, reach, [&](int gear, float error) {
    // Kept: the upper bound is always the user's plus one, so it grows once, in the second pass, while the
    // lower bound sinks by one in every pass.
    const double lower = -minus[gear];
    const double upper = plus[gear];
    if (error >= lower && error <= upper) return 1;
    if (manual[gear] || !(error <= upper + 1)) return kNoPass;
    const int raised = error > upper ? 2 : 1;
    if (error >= lower) return raised;
    const double sunk = 1 + std::ceil(lower - static_cast<double>(error));
    return sunk <= kMixedPasses ? std::max(raised, static_cast<int>(sunk)) : kNoPass;
  });
  for (int pass = 1; pass <= kMixedPasses; ++pass) {
    walk.Pass(pass, workspace, blink);
    if (workspace.PlanCount != 0) return true;
  }
  workspace.ResultWord = result::kOver;
  return false;
}

}  // namespace veldrin
