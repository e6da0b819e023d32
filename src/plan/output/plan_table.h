// What tables of plans consist of, for those that print plans among other things.
#pragma once

#include "plan/output/found_plans.h"

#include <ostream>
#include <string>
#include <vector>

namespace veldrin {

/// Columns of the widest pair, at least those of the heading.
int WidthOfPairs(const std::vector<FoundPlan>& plans);

/// The line with the machine and what its speeds rest on; `count` is its last words, such as "2 plans".
void WriteTableHead(std::ostream& out, const Workspace& workspace, const std::string& count);

/// A blank line, the line of `title`, primary and final row, and the six gears.
void WriteTablePlan(std::ostream& out, const std::string& title, const FoundPlan& plan, int pairWidth);

}  // namespace veldrin
