// A search with the arguments of a command line.
#pragma once

#include "calc/nearest_plan.h"
#include "model/workspace.h"
#include "plan/arguments/arguments.h"
#include "plan/best/best_plans.h"

#include <string>
#include <vector>

namespace veldrin {

/// Searches the machine's plans as the arguments ask for. True when there are some; they stand in `PlanList`.
/// Raises what the searches raise: fault 9 for more plans than the list holds.
bool RunSearch(const PlanArguments& arguments, Workspace& machine);

/// The best plans as the arguments ask for, which name how many. Raises nothing.
std::vector<BestPlan> RunBest(const PlanArguments& arguments, Workspace& machine, const PartCosts& costs);

/// Why that search finds nothing, with the machine as the search left it. Raises nothing.
NearestPlans WhyNoPlan(const PlanArguments& arguments, const Workspace& searched);

/// An option with a value under which a search that found more plans than the list holds finds some that fit,
/// such as "--main 3", and which options have to go for it; empty when there is none. It is tried out, so it
/// helps. Raises nothing.
std::string NarrowingOption(const PlanArguments& arguments, const Workspace& machine);

}  // namespace veldrin
