// Plans as text: a table to read, CSV and JSON.
#pragma once

#include "calc/nearest_plan.h"
#include "plan/arguments/arguments.h"
#include "plan/output/found_plans.h"
#include "plan/output/why.h"

#include <ostream>
#include <vector>

namespace veldrin {

/// The plans in the format that the arguments ask for. A table of no plans is empty, and so are drawing and
/// page.
void WritePlans(std::ostream& out, const PlanArguments& arguments, const Workspace& workspace,
                const std::vector<FoundPlan>& plans, const CombinationFile* combination = nullptr);

/// A head with the machine and what the search rests on, then a block for each plan.
void WriteTable(std::ostream& out, const Workspace& workspace, const std::vector<FoundPlan>& plans);

/// A line of names, then one line for each gear of each plan.
void WriteCsv(std::ostream& out, const std::vector<FoundPlan>& plans);

/// One object with the machine, what the search rests on, and the plans; and why there are none, where that
/// was asked.
void WriteJson(std::ostream& out, const Workspace& workspace, const std::vector<FoundPlan>& plans,
               const NearestPlans* why = nullptr);

}  // namespace veldrin
