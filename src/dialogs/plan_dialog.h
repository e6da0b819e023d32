// The plan dialog: pages through the plans that a search found and takes one into the workspace, or goes back
// to the request entry. The main window is hidden meanwhile.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Takes the plan `plan` of `PlanList` apart: primary row, final row and six gear rows go to `ShownPrimary`,
/// `ShownFinal` and `ShownRow`. Raises fault 13 for a text of fewer than eight numbers, 6 for a number beyond
/// 16 bits, 9 for a slot outside the list; what was read before stays.
void SplitPlan(const Workspace& workspace, PlanDialogState& dialog, int plan);

/// Binds the events of every plan dialog that will be loaded.
void AttachPlanDialog(Program& program);

}  // namespace veldrin
