// Plans at hand as text: tables to read, CSV and JSON.
#pragma once

#include "plan/sheet/plan_sheet.h"
#include "plan/tyre/tyre_fit.h"

#include <ostream>
#include <vector>

namespace veldrin {

/// A plan as the window shows it: speeds, steps, drops and deviations, its parts and remark.
void WriteSheetTable(std::ostream& out, const PlanSheet& sheet);

/// Plans side by side, one line a gear, with what changes from the first.
void WriteComparison(std::ostream& out, const std::vector<PlanSheet>& sheets);

/// A line of names, then one line for each gear of each plan.
void WriteSheetCsv(std::ostream& out, const std::vector<PlanSheet>& sheets);

/// One object with the machine and the plans; and the tyre that was measured, where there is one.
void WriteSheetJson(std::ostream& out, const std::vector<PlanSheet>& sheets, const TyreFit* tyre);

}  // namespace veldrin
