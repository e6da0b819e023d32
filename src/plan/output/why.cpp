#include "plan/output/why.h"

#include "calc/gear_names.h"
#include "calc/obstacles.h"
#include "plan/output/columns.h"
#include "plan/output/json_text.h"
#include "plan/output/plan_table.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

#include <cmath>

namespace veldrin {

namespace {

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

std::vector<std::string> InEnglish(const Workspace& searched, const NearestPlans& why) {
  std::vector<std::string> obstacles;
  for (const BothLanguages& obstacle : Obstacles(searched, why)) obstacles.push_back(obstacle.english);
  return obstacles;
}

void WriteWhyTable(std::ostream& out, const Workspace& searched, const NearestPlans& why) {
  WriteTableHead(out, searched, "no plan");
  out << '\n';
  for (const std::string& obstacle : InEnglish(searched, why)) out << obstacle << '\n';
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
  for (const std::string& obstacle : InEnglish(searched, why)) {
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
