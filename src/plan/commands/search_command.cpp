#include "plan/best/best_plans.h"
#include "plan/commands/call_files.h"
#include "plan/commands/commands.h"
#include "plan/commands/plan_run.h"
#include "plan/files/bad_input.h"
#include "plan/output/plan_output.h"
#include "plan/present/part_changes.h"
#include "runtime/fault.h"

#include <optional>

namespace veldrin {

namespace {

/// The plan that is built in, and its combination file.
std::optional<PartChanges> ChangesFrom(const Call& call, const Workspace& machine) {
  const PlanArguments& arguments = call.arguments;
  if (arguments.fromPath.empty()) return {};
  const PlanAtHand present = PlanOnMachine(call, arguments.fromPath, machine);
  return PartChanges(machine, RowsOf(present.workspace),
                     CombinationBeside(call, arguments.listPath, machine));
}

/// The parts, where they are printed.
std::optional<CombinationFile> ForPage(const Call& call, const Workspace& machine) {
  if (call.arguments.format != PlanFormat::Html) return {};
  return CombinationBeside(call, call.arguments.listPath, machine);
}

std::vector<PlanRows> RankedRows(const std::vector<BestPlan>& best) {
  std::vector<PlanRows> rows;
  for (const BestPlan& plan : best) rows.push_back(plan.rows);
  return rows;
}

std::vector<FoundPlan> Described(const Workspace& searched, const std::vector<PlanRows>& rows,
                                 const std::optional<PartChanges>& changes) {
  std::vector<FoundPlan> plans;
  for (const PlanRows& of : rows) {
    plans.push_back(FoundPlanOf(searched, of));
    if (changes) plans.back().changes = changes->To(of);
  }
  return plans;
}

std::vector<FoundPlan> BestOf(const PlanArguments& arguments, Workspace& machine,
                              const std::optional<PartChanges>& changes) {
  const std::vector<BestPlan> best = RunBest(arguments, machine, changes ? changes->Costs() : PartCosts());
  std::vector<FoundPlan> plans = Described(machine, RankedRows(best), changes);
  for (std::size_t k = 0; k < best.size(); ++k) plans[k].measures = best[k].measures;
  return plans;
}

std::string FaultText(int number, const PlanArguments& arguments, const Workspace& machine) {
  if (number == kFaultDivisionByZero) return "a division by zero in the speeds";
  if (number != kFaultSubscript) return "fault " + std::to_string(number) + " in the arithmetic";
  const std::string option = NarrowingOption(arguments, machine);
  return "more than " + std::to_string(kPlanLimit) + " plans meet these speeds; " +
         (option.empty() ? "ask for others" : "try " + option);
}

void WriteNone(const Call& call, const Workspace& searched) {
  if (!call.arguments.why) {
    WritePlans(call.out, call.arguments, searched, {});
    return;
  }
  const NearestPlans why = WhyNoPlan(call.arguments, searched);
  if (call.arguments.format == PlanFormat::Json) {
    WriteJson(call.out, searched, {}, &why);
  } else {
    WriteWhyTable(call.out, searched, why);
  }
}

}  // namespace

int SearchPlans(const Call& call) {
  const PlanArguments& arguments = call.arguments;
  Workspace machine = MachineOfList(call, arguments.listPath);
  const std::optional<PartChanges> changes = ChangesFrom(call, machine);
  try {
    std::vector<FoundPlan> plans;
    if (arguments.best) {
      plans = BestOf(arguments, machine, changes);
    } else if (RunSearch(arguments, machine)) {
      plans = Described(machine, FoundRows(machine), changes);
    }
    if (!plans.empty()) {
      const std::optional<CombinationFile> combination = ForPage(call, machine);
      WritePlans(call.out, arguments, machine, plans, combination ? &*combination : nullptr);
      return kDone;
    }
    WriteNone(call, machine);
  } catch (const RuntimeFault& fault) {
    RefuseFile(arguments.listPath, FaultText(fault.number, arguments, machine));
  }
  call.errors << arguments.listPath << ": no plan found\n";
  return kNoPlanFound;
}

}  // namespace veldrin
