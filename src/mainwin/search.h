// The search's place in the main window: the request panel's button, the waiting text, the timer, the failure
// panel.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// The gear that the options name for the search, 1 to 6, 0 for none.
int MainGear(const Program& program);

/// Whether all six gears read "AUTO".
bool AllGearsAuto(const Program& program);

/// The searches from the main window: banner, menus, failure panel. Results in `PlanList`, `PlanCount` and
/// `ResultWord` ("" or "NO_PLAN"). PlanSearchAuto ends the program when a quick-ratio or reference file asked
/// for what the machine cannot reach.
void PlanSearchAuto(Program& program);
void PlanSearchMixed(Program& program);

/// `Command6` Click: shows the waiting text, closes every other way in, and starts the timer that searches.
void StartSearch(Program& program);

/// The timer's tick: searches, and opens the plan dialog on success.
void SearchTimer_Timer(Program& program);

void AttachPlanSearch(Program& program);

}  // namespace veldrin
