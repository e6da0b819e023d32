// The plans that a search left in the workspace, with their texts and figures.
#pragma once

#include "calc/plan_rows.h"
#include "plan/best/rank_key.h"
#include "plan/present/part_changes.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

struct FoundGear {
  std::string pair;
  float request = 0;  // km/h
  float speed = 0;    // km/h
  float step = 0;     // km/h above the gear below; 0 in gear 1
  float afterNe = 0;  // rev/min after changing up into the gear; the shift-up revolutions in gear 1
};

struct FoundPlan {
  PlanRows rows;
  std::string primary;
  std::string final;
  std::array<FoundGear, kGears> gears;
  std::optional<Measures> measures;                // of the best plans
  std::optional<std::vector<PartChange>> changes;  // from the plan that is built in, where one is named
};

/// The plan of these rows, with the requests of the workspace. Raises fault 9 for rows outside the tables, 11
/// (or 6) where a speed of 0 or a pair without driven teeth is a divisor.
FoundPlan FoundPlanOf(const Workspace& workspace, const PlanRows& rows);

/// The rows of the plans of `PlanList`, in its order. Gaps that the search leaves between them are passed
/// over.
std::vector<PlanRows> FoundRows(const Workspace& workspace);

}  // namespace veldrin
