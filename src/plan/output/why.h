// Why a search found nothing, in words and for other programs.
#pragma once

#include "calc/nearest_plan.h"

#include <ostream>
#include <string>
#include <vector>

namespace veldrin {

/// What stands in the way, one sentence each, without the end of the sentence: gears that cannot be met,
/// pairs that exclude each other, or why a plan that there is was not found. At least one. `searched` is the
/// machine as the search left it, with its requests and the plans that were too few.
std::vector<std::string> Obstacles(const Workspace& searched, const NearestPlans& why);

/// A head, the obstacles, the speeds that each gear reaches next to its request, and the nearest combination.
void WriteWhyTable(std::ostream& out, const Workspace& searched, const NearestPlans& why);

/// The same as the value of the member "why".
void WriteWhyJson(std::ostream& out, const Workspace& searched, const NearestPlans& why);

}  // namespace veldrin
