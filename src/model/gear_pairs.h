// The plan line of a file: the texts of six gear pairs with hyphens between them.
#pragma once

#include "model/workspace.h"

#include <string>

namespace veldrin {

/// Cuts the plan line of a file at its hyphens into the texts of six gear pairs. The last takes the rest of
/// the line; pairs beyond the line's end are empty. Raises nothing.
/// Kept: a gear text with a hyphen of its own shifts the texts behind it.
void SplitPairs(const std::string& line, Table<std::string, 1, kGears>& pairs);

/// The row of each gear in `PlanIndex` becomes the first with the text of its pair in the line; one that is
/// not found keeps its row. What stands behind a sixth hyphen belongs to no gear. Raises fault 9 for gear
/// rows beyond the tables.
void FindGearPairs(Workspace& workspace, const std::string& line);

}  // namespace veldrin
