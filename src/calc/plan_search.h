// FULL AUTO: the search for plans that meet six request speeds.
#pragma once

#include "calc/plan_walk.h"

namespace veldrin {

/// Searches with one common tolerance for all gears, 1 km/h in the first pass and up to 20, until `PlanList`
/// holds at least `MinPlan` plans; `mainGear` (1..6, 0 for none) stays within 1 km/h throughout. Plans of
/// earlier passes stay in the list, duplicates are removed after each pass. True when the search succeeded;
/// the plans stand in `PlanList` 1..`PlanCount`. Raises what PlanWalk::Pass raises.
bool SearchAuto(Workspace& workspace, int mainGear, const Blink& blink);

/// Searches within `ToleranceMinus` and `TolerancePlus` of each gear; those not set to MANUAL widen from
/// pass to pass until a pass finds plans. True when one did. Raises what PlanWalk::Pass raises.
bool SearchMixed(Workspace& workspace, const Table<bool, 1, kGears>& manual, const Blink& blink);

}  // namespace veldrin
