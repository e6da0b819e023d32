#include "plan/planner.h"

#include "plan/arguments/option_table.h"
#include "plan/commands/commands.h"
#include "plan/files/bad_input.h"
#include "plan/files/list_file.h"

#include <optional>

namespace veldrin {

namespace {

int Run(const Call& call) {
  switch (call.arguments.action) {
    case PlanAction::Help:
      call.out << HelpText();
      return kDone;
    case PlanAction::Version:
      call.out << "veldrin-plan " << VELDRIN_VERSION << '\n';
      return kDone;
    case PlanAction::Search:
      return SearchPlans(call);
    case PlanAction::Show:
      return ShowPlan(call);
    case PlanAction::Compare:
      return ComparePlans(call);
    case PlanAction::Check:
      return CheckListFile(call);
    case PlanAction::FromCsv:
      return ListFromCsv(call);
    case PlanAction::ToCsv:
      return ListToCsv(call);
  }
  return kBadInput;
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
  try {
    return Run({*arguments, pages, out, errors});
  } catch (const BadInput& bad) {
    errors << bad.text << '\n';
    return kBadInput;
  }
}

}  // namespace veldrin
