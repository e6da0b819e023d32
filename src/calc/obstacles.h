// Why a search found nothing, in words of both languages: one sentence for each set of gears that stands in
// the way.
#pragma once

#include "calc/nearest_plan.h"
#include "platform/notices.h"

#include <string>
#include <vector>

namespace veldrin {

/// What keeps the searched requests from being met. Never empty. `searched` is the workspace after the
/// search. Raises nothing.
std::vector<BothLanguages> Obstacles(const Workspace& searched, const NearestPlans& why);

/// A speed or a miss in km/h with one decimal and a point.
std::string Kmh(float speed);

}  // namespace veldrin
