#include "plan/output/why.h"

#include "plan/output/columns.h"
#include "plan/output/json_text.h"
#include "plan/output/plan_table.h"
#include "plan/sheet/gear_names.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

#include <cmath>

namespace veldrin {

namespace {

std::string Kmh(float speed) {
  return FormatNumber(speed, "0.0");
}

/// "1ST", "1ST and 2ND", "1ST, 2ND and 3RD".
std::string GearNames(const std::vector<int>& gears) {
  std::string names;
  for (std::size_t k = 0; k < gears.size(); ++k) {
    if (k > 0) names += k + 1 == gears.size() ? " and " : ", ";
    names += GearName(gears[k]);
  }
  return names;
}

std::string OneGear(const Workspace& searched, const GearReach& reach, int gear) {
  if (!reach.below && !reach.above) return GearName(gear) + ": there is no pair that can be fitted";
  const std::string wanted = ShortestText(searched.SpeedRequest[gear]);
  const bool isBelow = reach.below && (!reach.above || -reach.below->error <= reach.above->error);
  return GearName(gear) + ": no combination comes near enough to " + wanted + " km/h; the nearest is " +
         Kmh(isBelow ? reach.below->speed : reach.above->speed);
}

std::string PairText(const Workspace& searched, const NearPlan& plan, int gear) {
  return searched.GearTable(gear, plan.rows.gear[gear]);
}

std::string ForbiddenPairs(const Workspace& searched, const NearestPlans& why,
                           const std::vector<int>& gears) {
  std::string text = GearNames(gears) + ": the pairs of 3RD and 4TH that bring " +
                     (gears.size() == 2 ? "both" : "all") + " near enough cannot be fitted together";
  if (why.nearestForbidden) {
    text += ", the nearest " + PairText(searched, *why.nearestForbidden, 3) + " and " +
            PairText(searched, *why.nearestForbidden, 4);
  }
  return text;
}

void WriteMiss(std::ostream& out, const NearPlan& plan) {
  out << "  misses by " << Kmh(plan.largest) << " km/h at most";
  std::vector<int> worst;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (std::fabs(plan.error[gear]) == plan.largest) worst.push_back(gear);
  }
  if (!worst.empty()) out << ", in " << GearNames(worst);
  out << '\n';
}

void WriteReachLine(std::ostream& out, const Workspace& searched, const GearReach& reach, int gear) {
  const auto speed = [](const std::optional<ReachedSpeed>& reached) {
    return Before(reached ? Kmh(reached->speed) : "-", 12);
  };
  out << "  " << GearName(gear) << Before(ShortestText(searched.SpeedRequest[gear]), 11) << speed(reach.below)
      << speed(reach.above) << '\n';
}

void WriteReachJson(std::ostream& out, const Workspace& searched, const GearReach& reach, int gear) {
  const auto speed = [](const std::optional<ReachedSpeed>& reached) {
    return reached ? ShortestText(reached->speed) : std::string("null");
  };
  out << "      {\"gear\": " << gear << ", \"request\": " << ShortestText(searched.SpeedRequest[gear])
      << ", \"below\": " << speed(reach.below) << ", \"above\": " << speed(reach.above) << '}';
}

void WriteNearestJson(std::ostream& out, const Workspace& searched, const std::optional<NearPlan>& plan) {
  if (!plan) {
    out << "null";
    return;
  }
  out << "{\"within\": " << ShortestText(plan->largest) << ", \"plan\":\n";
  WriteJsonPlan(out, FoundPlanOf(searched, plan->rows));
  out << '}';
}

}  // namespace

std::vector<std::string> Obstacles(const Workspace& searched, const NearestPlans& why) {
  std::vector<std::string> obstacles;
  for (const Conflict& conflict : why.conflicts) {
    const std::vector<int>& gears = conflict.gears;
    if (conflict.forbiddenPairs) {
      obstacles.push_back(ForbiddenPairs(searched, why, gears));
    } else if (gears.size() == 1) {
      obstacles.push_back(OneGear(searched, why.reach[gears[0]], gears[0]));
    } else {
      obstacles.push_back(GearNames(gears) + ": no combination brings " +
                          (gears.size() == 2 ? "both" : "all") + " near enough");
    }
  }
  if (!obstacles.empty()) return obstacles;
  if (searched.PlanCount > 0) {
    return {"only " + std::to_string(searched.PlanCount) + " of the " + std::to_string(searched.MinPlan) +
            " plans wanted meet the speeds"};
  }
  return {"the nearest pairs of 3RD and 4TH cannot be fitted together, and the search tries no others"};
}

void WriteWhyTable(std::ostream& out, const Workspace& searched, const NearestPlans& why) {
  WriteTableHead(out, searched, "no plan");
  out << '\n';
  for (const std::string& obstacle : Obstacles(searched, why)) out << obstacle << '\n';
  out << "\n  gear    request       below       above\n";
  for (int gear = 1; gear <= kGears; ++gear) WriteReachLine(out, searched, why.reach[gear], gear);
  if (!why.nearest) return;
  const std::optional<NearPlan>& held = why.nearestHeld;
  const FoundPlan nearest = FoundPlanOf(searched, why.nearest->rows);
  const int width = WidthOfPairs({nearest});
  WriteTablePlan(out, "Nearest", nearest, width);
  WriteMiss(out, *why.nearest);
  if (!held || ListText(held->rows) == ListText(why.nearest->rows)) return;
  const FoundPlan kept = FoundPlanOf(searched, held->rows);
  WriteTablePlan(out, "Nearest with the gears that are held", kept, WidthOfPairs({kept}));
  out << "  needs a tolerance of " << Kmh(held->largest) << " km/h in the others\n";
}

void WriteWhyJson(std::ostream& out, const Workspace& searched, const NearestPlans& why) {
  out << "{\n    \"obstacles\": [";
  const char* separator = "\n";
  for (const std::string& obstacle : Obstacles(searched, why)) {
    out << separator << "      " << JsonText(obstacle);
    separator = ",\n";
  }
  out << "\n    ],\n    \"reach\": [\n";
  for (int gear = 1; gear <= kGears; ++gear) {
    WriteReachJson(out, searched, why.reach[gear], gear);
    out << (gear < kGears ? ",\n" : "\n");
  }
  out << "    ],\n    \"nearest\": ";
  WriteNearestJson(out, searched, why.nearest);
  out << ",\n    \"nearest_held\": ";
  WriteNearestJson(out, searched, why.nearestHeld);
  out << "\n  }";
}

}  // namespace veldrin
