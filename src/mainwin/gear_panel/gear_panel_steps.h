// Steps through the fitted parts: primary row, final row and gear pairs, and what a change of their labels
// sets off.
//
//   step of a gear:  row of the plan -> test of 3rd and 4th -> label -> its Change -> refresh
//
// The labels' Change events refresh unless a reader is writing ("MODULE1"), and bring an open combination
// panel up to date.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// After a new row for `gear`: tests whether the rows of 3rd and 4th gear can be fitted together, if it is
/// one of them. A forbidden pair turns both labels red, closes the combination panel, and keeps the plan from
/// being saved, printed and exported; an allowed one turns them grey. Raises fault 9 for rows outside the
/// matrix.
void TestForbiddenPair(Program& program, int gear);

/// Binds `Spin4`, `Spin5`, `Spin6` and the Change events of `Label6`, `Label8` and `Label12`.
void AttachGearPanelSteps(Program& program);

}  // namespace veldrin
