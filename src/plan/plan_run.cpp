#include "plan/plan_run.h"

#include "calc/plan_search.h"
#include "runtime/fault.h"

#include <algorithm>

namespace veldrin {

namespace {

bool FindsPlans(const PlanArguments& arguments, const Workspace& machine) {
  Workspace tried = machine;
  bool found = false;
  return Guarded([&] { found = RunSearch(arguments, tried); }) == 0 && found;
}

std::string FewerPlans(PlanArguments arguments, const Workspace& machine) {
  while (--arguments.minPlan >= 1) {
    if (FindsPlans(arguments, machine)) return "--min-plan " + std::to_string(arguments.minPlan);
  }
  return "";
}

std::string AMainGear(PlanArguments arguments, const Workspace& machine) {
  if (arguments.mainGear != 0) return "";
  for (int gear = 1; gear <= kGears; ++gear) {
    arguments.mainGear = gear;
    if (FindsPlans(arguments, machine)) return "--main " + std::to_string(gear);
  }
  return "";
}

/// Bounds of one gear, the widest that help.
std::string ManualGear(PlanArguments arguments, const Workspace& machine) {
  // These do not go together with --manual.
  arguments.mainGear = 0;
  arguments.minPlan = 1;
  constexpr auto kWidest = static_cast<std::int16_t>(kToleranceLimits.highest);
  for (int width = kWidest; width >= kToleranceLimits.lowest; --width) {
    for (int gear = 1; gear <= kGears; ++gear) {
      const ManualBounds old = arguments.manual[gear].value_or(ManualBounds{kWidest, kWidest});
      PlanArguments tried = arguments;
      tried.manual[gear] = ManualBounds{std::min<std::int16_t>(old.minus, static_cast<std::int16_t>(width)),
                                        std::min<std::int16_t>(old.plus, static_cast<std::int16_t>(width))};
      if (!FindsPlans(tried, machine)) continue;
      return "--manual " + std::to_string(gear) + "=-" + std::to_string(tried.manual[gear]->minus) + "+" +
             std::to_string(tried.manual[gear]->plus);
    }
  }
  return "";
}

/// The gears that --manual holds.
Table<bool, 1, kGears> ManualGears(const PlanArguments& arguments) {
  Table<bool, 1, kGears> manual;
  for (int gear = 1; gear <= kGears; ++gear) manual[gear] = arguments.manual[gear].has_value();
  return manual;
}

}  // namespace

bool RunSearch(const PlanArguments& arguments, Workspace& machine) {
  machine.MinPlan = arguments.minPlan;
  machine.SpeedRequest = arguments.speed;
  const Blink silent = [](int) {};
  if (!arguments.HasManual()) return SearchAuto(machine, arguments.mainGear, silent);
  for (int gear = 1; gear <= kGears; ++gear) {
    const ManualBounds bounds = arguments.manual[gear].value_or(ManualBounds{1, 1});
    machine.ToleranceMinus[gear] = bounds.minus;
    machine.TolerancePlus[gear] = bounds.plus;
  }
  return SearchMixed(machine, ManualGears(arguments), silent);
}

NearestPlans WhyNoPlan(const PlanArguments& arguments, const Workspace& searched) {
  return FindNearestPlans(searched, arguments.HasManual() ? MixedBounds(searched, ManualGears(arguments))
                                                          : AutoBounds(arguments.mainGear));
}

std::string NarrowingOption(const PlanArguments& arguments, const Workspace& machine) {
  std::string option;
  if (!arguments.HasManual()) {
    option = FewerPlans(arguments, machine);
    if (option.empty()) option = AMainGear(arguments, machine);
  }
  if (!option.empty()) return option;
  option = ManualGear(arguments, machine);
  if (option.empty()) return "";
  const bool hasMain = arguments.mainGear != 0;
  const bool hasMinPlan = arguments.minPlan > 1;
  if (hasMain || hasMinPlan) option += " in place of ";
  if (hasMain) option += "--main";
  if (hasMinPlan) option += hasMain ? " and --min-plan" : "--min-plan";
  return option;
}

}  // namespace veldrin
