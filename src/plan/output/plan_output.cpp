#include "plan/output/plan_output.h"

#include "plan/page/page_output.h"

namespace veldrin {

namespace {

std::vector<PlanSheet> SheetsOf(const Workspace& workspace, const std::vector<FoundPlan>& plans,
                                const CombinationFile* combination, bool japanese) {
  std::vector<PlanSheet> sheets;
  for (const FoundPlan& plan : plans) {
    Workspace holding = workspace;
    holding.PrimaryIndex = plan.rows.primary;
    holding.FinalIndex = plan.rows.final;
    holding.PlanIndex = plan.rows.gear;
    const std::string number = std::to_string(sheets.size() + 1);
    sheets.push_back(SheetOf(holding, (japanese ? "プラン " : "Plan ") + number, combination));
    sheets.back().changes = plan.changes;
  }
  return sheets;
}

}  // namespace

void WritePlans(std::ostream& out, const PlanArguments& arguments, const Workspace& workspace,
                const std::vector<FoundPlan>& plans, const CombinationFile* combination) {
  switch (arguments.format) {
    case PlanFormat::Table:
      if (!plans.empty()) WriteTable(out, workspace, plans);
      break;
    case PlanFormat::Csv:
      WriteCsv(out, plans);
      break;
    case PlanFormat::Json:
      WriteJson(out, workspace, plans);
      break;
    case PlanFormat::Svg:
    case PlanFormat::Html:
      WritePage(out, arguments.format == PlanFormat::Html, arguments.japanese,
                SheetsOf(workspace, plans, combination, arguments.japanese), nullptr);
      break;
  }
}

}  // namespace veldrin
