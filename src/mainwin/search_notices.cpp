#include "mainwin/search_notices.h"

#include "calc/gear_names.h"
#include "calc/gear_speed.h"
#include "calc/nearest_plan.h"
#include "calc/obstacles.h"
#include "calc/plan_rows.h"
#include "platform/notices.h"
#include "runtime/fault.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr char kTopic[] = "search";

/// The largest miss of a gear of any plan, in whole km/h, at least 1: the tolerance that holds them all.
int ToleranceOfAll(const Workspace& workspace) {
  double largest = 1;
  for (int place = 1; place <= workspace.PlanCount; ++place) {
    PlanRows rows;
    // A gap of the list is no plan.
    Guarded([&] {
      ReadListText(workspace.PlanList[place], DecimalSeparator(workspace), rows);
      for (int gear = 1; gear <= kGears; ++gear) {
        const float speed = GearSpeed(workspace, rows.primary, rows.final, gear, rows.gear[gear]);
        largest = std::max(largest, std::fabs(static_cast<double>(speed) - workspace.SpeedRequest[gear]));
      }
    });
  }
  return static_cast<int>(std::ceil(largest));
}

/// A miss with its sign; one that shows no digit has none.
std::string Signed(float miss) {
  const std::string digits = Kmh(std::fabs(miss));
  if (digits == "0.0") return digits;
  return (miss < 0 ? "-" : "+") + digits;
}

/// What the combination misses in each gear: "1ST +0.3 2ND -1.2".
std::string Misses(const NearPlan& plan) {
  std::string text;
  for (int gear = 1; gear <= kGears; ++gear) {
    text += (text.empty() ? "" : " ") + GearName(gear) + " " + Signed(plan.error[gear]);
  }
  return text;
}

BothLanguages NearestWords(const Workspace& workspace, const NearPlan& plan) {
  const std::string rows =
      workspace.PrimaryTable[plan.rows.primary].Text + " " + workspace.FinalTable[plan.rows.final].Text;
  const std::string misses = Misses(plan);
  return {". Nearest: " + rows + ", " + misses + " km/h",
          "。最も近いのは " + rows + "（" + misses + " km/h）"};
}

}  // namespace

void TellFound(Program& program) {
  const int count = program.workspace.PlanCount;
  const std::string within = std::to_string(ToleranceOfAll(program.workspace));
  program.machine.notices.Tell(
      {Severity::Information,
       {std::to_string(count) + (count == 1 ? " plan" : " plans") + " within " + within + " km/h",
        within + " km/h 以内のプラン: " + std::to_string(count) + " 件"},
       {},
       kTopic});
}

void TellWhyNone(Program& program, const SearchBounds& bounds) {
  const Workspace& workspace = program.workspace;
  const NearestPlans why = FindNearestPlans(workspace, bounds);
  BothLanguages text;
  for (const BothLanguages& obstacle : Obstacles(workspace, why)) {
    text.english += (text.english.empty() ? "" : "; ") + obstacle.english;
    text.japanese += (text.japanese.empty() ? "" : "、") + obstacle.japanese;
  }
  if (why.nearest) {
    const BothLanguages nearest = NearestWords(workspace, *why.nearest);
    text.english += nearest.english;
    text.japanese += nearest.japanese;
  }
  program.machine.notices.Tell({Severity::Warning, std::move(text), {}, kTopic});
}

}  // namespace veldrin
