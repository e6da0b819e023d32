#include "plan/planner.h"

#include "calc/plan_search.h"
#include "plan/arguments.h"
#include "plan/help.h"
#include "plan/list_check.h"
#include "plan/list_file.h"
#include "plan/machine.h"
#include "plan/plan_output.h"
#include "runtime/fault.h"
#include "workspace/list_tables.h"

#include <filesystem>
#include <optional>

namespace veldrin {

namespace {

constexpr int kDone = 0;
constexpr int kNoPlanFound = 1;
constexpr int kBadInput = 2;

std::optional<std::string> ReadList(const PlanArguments& arguments, const CodePages& pages,
                                    std::ostream& errors) {
  std::string mistake;
  std::optional<std::string> text = ReadListFile(arguments.listPath, pages, arguments.page, mistake);
  if (!text) errors << arguments.listPath << ": " << mistake << '\n';
  return text;
}

ListRemarks CheckFile(const std::string& path, const std::string& text) {
  return CheckList(text, std::filesystem::path(path).stem().string());
}

void WriteRemark(std::ostream& errors, const std::string& path, const ListRemark& remark) {
  errors << path << ':' << remark.line << ": " << (remark.warning ? "warning: " : "") << remark.text << '\n';
}

int Check(const PlanArguments& arguments, const CodePages& pages, std::ostream& out, std::ostream& errors) {
  const std::string& path = arguments.listPath;
  const std::optional<std::string> text = ReadList(arguments, pages, errors);
  if (!text) return kBadInput;
  const ListRemarks remarks = CheckFile(path, *text);
  for (const ListRemark& remark : remarks.InOrder()) WriteRemark(errors, path, remark);
  if (remarks.Faults() > 0) return kBadInput;
  const Workspace workspace = ReadMachine(*text);
  out << path << ": fine: machine " << workspace.MachineName << ", " << workspace.PrimaryCount << " primary, "
      << FinalRowCount(workspace) << " final and " << workspace.GearRows << " gear rows\n";
  return kDone;
}

bool RunSearch(const PlanArguments& arguments, Workspace& workspace) {
  const Blink silent = [](int) {};
  if (!arguments.HasManual()) return SearchAuto(workspace, arguments.mainGear, silent);
  Table<bool, 1, kGears> manual;
  for (int gear = 1; gear <= kGears; ++gear) {
    manual[gear] = arguments.manual[gear].has_value();
    const ManualBounds bounds = arguments.manual[gear].value_or(ManualBounds{1, 1});
    workspace.ToleranceMinus[gear] = bounds.minus;
    workspace.TolerancePlus[gear] = bounds.plus;
  }
  return SearchMixed(workspace, manual, silent);
}

void WritePlans(std::ostream& out, PlanFormat format, const Workspace& workspace,
                const std::vector<FoundPlan>& plans) {
  switch (format) {
    case PlanFormat::Table:
      if (!plans.empty()) WriteTable(out, workspace, plans);
      break;
    case PlanFormat::Csv:
      WriteCsv(out, plans);
      break;
    case PlanFormat::Json:
      WriteJson(out, workspace, plans);
      break;
  }
}

std::string FaultText(int number) {
  switch (number) {
    case kFaultSubscript:
      return "more than 30 plans meet these speeds; ask for narrower ones";
    case kFaultDivisionByZero:
      return "a division by zero in the speeds";
    default:
      return "fault " + std::to_string(number) + " in the arithmetic";
  }
}

int Search(const PlanArguments& arguments, const CodePages& pages, std::ostream& out, std::ostream& errors) {
  const std::string& path = arguments.listPath;
  const std::optional<std::string> text = ReadList(arguments, pages, errors);
  if (!text) return kBadInput;
  for (const ListRemark& remark : CheckFile(path, *text).InOrder()) {
    if (remark.warning) continue;
    WriteRemark(errors, path, remark);
    return kBadInput;
  }
  Workspace workspace = ReadMachine(*text);
  workspace.ShiftNe = arguments.shiftNe.value_or(workspace.ShiftNe);
  workspace.TyreLength = arguments.tyreLength.value_or(workspace.TyreLength);
  workspace.MinPlan = arguments.minPlan;
  workspace.SpeedRequest = arguments.speed;
  try {
    const bool found = RunSearch(arguments, workspace);
    WritePlans(out, arguments.format, workspace, found ? FoundPlans(workspace) : std::vector<FoundPlan>());
    if (found) return kDone;
  } catch (const RuntimeFault& fault) {
    errors << path << ": " << FaultText(fault.number) << '\n';
    return kBadInput;
  }
  errors << path << ": no plan found\n";
  return kNoPlanFound;
}

}  // namespace

int RunPlanner(const std::vector<std::string>& words, const CodePages& pages, std::ostream& out,
               std::ostream& errors) {
  std::string mistake;
  const std::optional<PlanArguments> arguments = ReadArguments(words, mistake);
  if (arguments && arguments->page && !IsKnownPage(pages, *arguments->page)) {
    mistake = "--encoding: cp" + std::to_string(*arguments->page) + " is not known here";
  }
  if (!mistake.empty()) {
    errors << "veldrin-plan: " << mistake << '\n';
    return kBadInput;
  }
  switch (arguments->action) {
    case PlanAction::Help:
      out << kPlanHelp;
      return kDone;
    case PlanAction::Version:
      out << "veldrin-plan " << VELDRIN_VERSION << '\n';
      return kDone;
    case PlanAction::Check:
      return Check(*arguments, pages, out, errors);
    case PlanAction::Search:
      return Search(*arguments, pages, out, errors);
  }
  return kBadInput;
}

}  // namespace veldrin
