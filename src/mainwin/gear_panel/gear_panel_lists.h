// The pop-up lists: gear pairs of a gear in one row of cells, final ratios in one column.
//
//   pick of a gear pair:  rows of the plan and label -> test of 3rd and 4th -> the list hides
//
// A list also hides when it loses the focus.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the clicks on `Label8` and `Label12`, and `Grid1` and `Grid2`.
void AttachGearPanelLists(Program& program);

}  // namespace veldrin
