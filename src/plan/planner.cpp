#include "plan/planner.h"

#include "calc/plan_search.h"
#include "model/list_tables.h"
#include "plan/arguments.h"
#include "plan/check/list_check.h"
#include "plan/help.h"
#include "plan/list_file.h"
#include "plan/machine.h"
#include "plan/plan_output.h"
#include "plan/plan_run.h"
#include "plan/why.h"
#include "runtime/fault.h"
#include "runtime/text_file.h"

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

void WriteWhy(const PlanArguments& arguments, const Workspace& searched, std::ostream& out) {
  const NearestPlans why = WhyNoPlan(arguments, searched);
  if (arguments.format == PlanFormat::Json) {
    WriteJson(out, searched, {}, &why);
  } else {
    WriteWhyTable(out, searched, why);
  }
}

std::string TooManyPlans(const PlanArguments& arguments, const Workspace& machine) {
  const std::string option = NarrowingOption(arguments, machine);
  return "more than " + std::to_string(kPlanLimit) + " plans meet these speeds; " +
         (option.empty() ? "ask for others" : "try " + option);
}

std::string FaultText(int number, const PlanArguments& arguments, const Workspace& machine) {
  switch (number) {
    case kFaultSubscript:
      return TooManyPlans(arguments, machine);
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
  if (workspace.GearRows > kGearRowLimit) {
    errors << path << ": " << workspace.GearRows << " gear rows are announced, a search looks at "
           << kGearRowLimit << " at most\n";
    return kBadInput;
  }
  try {
    const bool found = RunSearch(arguments, workspace);
    if (!found && arguments.why) {
      WriteWhy(arguments, workspace, out);
    } else {
      WritePlans(out, arguments.format, workspace, found ? FoundPlans(workspace) : std::vector<FoundPlan>());
    }
    if (found) return kDone;
  } catch (const RuntimeFault& fault) {
    errors << path << ": " << FaultText(fault.number, arguments, workspace) << '\n';
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
