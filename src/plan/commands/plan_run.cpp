#include "plan/commands/plan_run.h"

#include "calc/plan_search.h"
#include "runtime/fault.h"

#include <algorithm>
#include <limits>

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

/// How far the best plans may miss, where nothing is said.
constexpr double kWithinByDefault = 5;

std::optional<double> Within(const PlanArguments& arguments) {
  if (arguments.within) return arguments.within;
  const bool needsOne = arguments.rank == Rank::Steps || arguments.rank == Rank::Change;
  return needsOne ? std::optional(kWithinByDefault) : std::nullopt;
}

/// The bounds of the gears that are held, and all others within the same.
SearchBounds BestBounds(const PlanArguments& arguments) {
  SearchBounds bounds;
  const double within = Within(arguments).value_or(std::numeric_limits<double>::infinity());
  for (int gear = 1; gear <= kGears; ++gear) {
    bounds[gear] = {within, within, false};
    if (gear == arguments.mainGear) bounds[gear] = {1, 1, true};
    if (const auto& manual = arguments.manual[gear]) {
      bounds[gear] = {static_cast<double>(manual->minus), static_cast<double>(manual->plus), true};
    }
  }
  return bounds;
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

std::vector<BestPlan> RunBest(const PlanArguments& arguments, Workspace& machine, const PartCosts& costs) {
  machine.SpeedRequest = arguments.speed;
  BestQuery query;
  query.count = arguments.best.value_or(1);
  query.rank = arguments.rank;
  query.within = Within(arguments);
  query.bounds = BestBounds(arguments);
  query.costs = costs;
  return FindBestPlans(machine, query);
}

NearestPlans WhyNoPlan(const PlanArguments& arguments, const Workspace& searched) {
  if (arguments.best) return FindNearestPlans(searched, BestBounds(arguments));
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
