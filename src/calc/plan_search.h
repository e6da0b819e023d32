// FULL AUTO: the search for plans that meet six request speeds.
#pragma once

#include "calc/plan_walk.h"
#include "calc/search_bounds.h"

namespace veldrin {

/// Takes the later ones of equal plans out of `PlanList`.
/// Kept: where several neighbouring ones were equal, empty texts may stay in the list.
void RemoveEqualPlans(Workspace& workspace);

/// Searches with one common tolerance for all gears, 1 km/h in the first pass and up to 20, until `PlanList`
/// holds at least `MinPlan` plans; `mainGear` (1..6, 0 for none) stays within 1 km/h throughout. Plans of
/// earlier passes stay in the list, duplicates are removed after each pass. `blink(finalRow)` is told of
/// every combination of every pass. True when the search succeeded; the plans stand in
/// `PlanList` 1..`PlanCount`. Raises what PlanWalk::Pass raises.
template <class Told>
bool SearchAuto(Workspace& workspace, int mainGear, const Told& blink) {
  workspace.PlanCount = 0;
  PlanWalk walk(workspace, AutoRules(mainGear));
  for (int tolerance = 1; tolerance <= kAutoPasses; ++tolerance) {
    walk.Pass(tolerance, workspace, blink);
    RemoveEqualPlans(workspace);
    if (workspace.PlanCount >= workspace.MinPlan) return true;
  }
  return false;
}

/// Searches within `ToleranceMinus` and `TolerancePlus` of each gear; those not set to MANUAL widen from
/// pass to pass until a pass finds plans. True when one did. Raises what PlanWalk::Pass raises.
template <class Told>
bool SearchMixed(Workspace& workspace, const Table<bool, 1, kGears>& manual, const Told& blink) {
  workspace.PlanCount = 0;
  PlanWalk walk(workspace, MixedRules(workspace, manual));
  for (int pass = 1; pass <= kMixedPasses; ++pass) {
    walk.Pass(pass, workspace, blink);
    if (workspace.PlanCount != 0) return true;
  }
  workspace.ResultWord = result::kOver;
  return false;
}

}  // namespace veldrin
