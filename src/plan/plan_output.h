// Plans as text: a table to read, CSV and JSON.
#pragma once

#include "calc/nearest_plan.h"
#include "plan/found_plans.h"

#include <ostream>
#include <vector>

namespace veldrin {

/// A head with the machine and what the search rests on, then a block for each plan.
void WriteTable(std::ostream& out, const Workspace& workspace, const std::vector<FoundPlan>& plans);

/// A line of names, then one line for each gear of each plan.
void WriteCsv(std::ostream& out, const std::vector<FoundPlan>& plans);

/// One object with the machine, what the search rests on, and the plans; and why there are none, where that
/// was asked.
void WriteJson(std::ostream& out, const Workspace& workspace, const std::vector<FoundPlan>& plans,
               const NearestPlans* why = nullptr);

}  // namespace veldrin
