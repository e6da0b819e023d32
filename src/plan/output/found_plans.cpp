#include "plan/output/found_plans.h"

#include "calc/gear_speed.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

namespace veldrin {

FoundPlan FoundPlanOf(const Workspace& workspace, const PlanRows& rows) {
  FoundPlan plan;
  plan.rows = rows;
  plan.primary = Trim(workspace.PrimaryTable[rows.primary].Text);
  plan.final = Trim(workspace.FinalTable[rows.final].Text);
  float below = 0;
  for (int gear = 1; gear <= kGears; ++gear) {
    const int row = rows.gear[gear];
    FoundGear& found = plan.gears[static_cast<std::size_t>(gear - 1)];
    found.pair = workspace.GearTable(gear, row);
    found.request = workspace.SpeedRequest[gear];
    found.speed = ToSingle(GearSpeed(workspace, rows.primary, rows.final, gear, row));
    if (gear == 1) below = found.speed;
    found.step = found.speed - below;
    found.afterNe = ToSingle(Divide(below, found.speed) * workspace.ShiftNe);
    below = found.speed;
  }
  return plan;
}

std::vector<PlanRows> FoundRows(const Workspace& workspace) {
  std::vector<PlanRows> plans;
  for (int k = 1; k <= workspace.PlanCount; ++k) {
    const std::string& text = workspace.PlanList[k];
    if (!text.empty()) ReadListText(text, '.', plans.emplace_back());
  }
  return plans;
}

}  // namespace veldrin
