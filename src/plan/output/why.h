// Why a search found nothing, in words and for other programs.
#pragma once

#include "calc/nearest_plan.h"

#include <ostream>

namespace veldrin {

/// A head, the obstacles, the speeds that each gear reaches next to its request, and the nearest combination.
void WriteWhyTable(std::ostream& out, const Workspace& searched, const NearestPlans& why);

/// The same as the value of the member "why".
void WriteWhyJson(std::ostream& out, const Workspace& searched, const NearestPlans& why);

}  // namespace veldrin
