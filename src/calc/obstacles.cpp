#include "calc/obstacles.h"

#include "calc/gear_names.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

namespace veldrin {

namespace {

std::string InJapanese(const std::vector<int>& gears) {
  std::string names;
  for (const int gear : gears) names += (names.empty() ? "" : "・") + GearName(gear);
  return names;
}

BothLanguages OneGear(const Workspace& searched, const GearReach& reach, int gear) {
  const std::string name = GearName(gear);
  if (!reach.below && !reach.above) {
    return {name + ": there is no pair that can be fitted", name + ": 組み付けられるギヤがありません"};
  }
  const std::string wanted = ShortestText(searched.SpeedRequest[gear]);
  const bool isBelow = reach.below && (!reach.above || -reach.below->error <= reach.above->error);
  const std::string nearest = Kmh(isBelow ? reach.below->speed : reach.above->speed);
  return {
      name + ": no combination comes near enough to " + wanted + " km/h; the nearest is " + nearest,
      name + ": " + wanted + " km/h に届く組み合わせがありません。最も近いのは " + nearest + " km/h です"};
}

BothLanguages ForbiddenPairs(const Workspace& searched, const NearestPlans& why,
                             const std::vector<int>& gears) {
  const bool two = gears.size() == 2;
  BothLanguages text{GearNames(gears) + ": the pairs of 3RD and 4TH that bring " + (two ? "both" : "all") +
                         " near enough cannot be fitted together",
                     InJapanese(gears) + ": 目標に届く 3RD と 4TH のギヤは同時に組み付けられません"};
  if (!why.nearestForbidden) return text;
  const PlanRows& rows = why.nearestForbidden->rows;
  const std::string& third = searched.GearTable(3, rows.gear[3]);
  const std::string& fourth = searched.GearTable(4, rows.gear[4]);
  text.english += ", the nearest " + third + " and " + fourth;
  text.japanese += "（最も近いのは " + third + " と " + fourth + "）";
  return text;
}

BothLanguages SeveralGears(const std::vector<int>& gears) {
  return {
      GearNames(gears) + ": no combination brings " + (gears.size() == 2 ? "both" : "all") + " near enough",
      InJapanese(gears) + ": 同時に目標に届く組み合わせがありません"};
}

}  // namespace

std::string Kmh(float speed) {
  return FormatNumber(speed, "0.0");
}

std::vector<BothLanguages> Obstacles(const Workspace& searched, const NearestPlans& why) {
  std::vector<BothLanguages> obstacles;
  for (const Conflict& conflict : why.conflicts) {
    const std::vector<int>& gears = conflict.gears;
    if (conflict.forbiddenPairs) {
      obstacles.push_back(ForbiddenPairs(searched, why, gears));
    } else if (gears.size() == 1) {
      obstacles.push_back(OneGear(searched, why.reach[gears[0]], gears[0]));
    } else {
      obstacles.push_back(SeveralGears(gears));
    }
  }
  if (!obstacles.empty()) return obstacles;
  if (searched.PlanCount > 0) {
    const std::string found = std::to_string(searched.PlanCount);
    const std::string wanted = std::to_string(searched.MinPlan);
    return {{"only " + found + " of the " + wanted + " plans wanted meet the speeds",
             "目標に届くプランは " + wanted + " 件中 " + found + " 件だけです"}};
  }
  return {{"the nearest pairs of 3RD and 4TH cannot be fitted together, and the search tries no others",
           "最も近い 3RD と 4TH のギヤは同時に組み付けられず、計算は他のギヤを試しません"}};
}

}  // namespace veldrin
