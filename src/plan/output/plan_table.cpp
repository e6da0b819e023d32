#include "plan/output/plan_table.h"

#include "calc/gear_names.h"
#include "plan/output/columns.h"
#include "plan/output/plan_output.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

#include <algorithm>

namespace veldrin {

int WidthOfPairs(const std::vector<FoundPlan>& plans) {
  int width = Columns("pair");
  for (const FoundPlan& plan : plans) {
    for (const FoundGear& gear : plan.gears) width = std::max(width, Columns(gear.pair));
  }
  return width;
}

namespace {

/// The speed's distance from the request with its sign, which nothing does not have.
std::string Distance(const FoundGear& gear) {
  const std::string text = FormatNumber(gear.speed - gear.request, "+0.0;-0.0");
  return text == "+0.0" || text == "-0.0" ? "0.0" : text;
}

void WriteGear(std::ostream& out, std::size_t k, const FoundGear& gear, int pairWidth) {
  out << "  " << GearName(static_cast<int>(k) + 1) << "   " << Behind(gear.pair, pairWidth)
      << Before(ShortestText(gear.request), 10) << Before(FormatNumber(gear.speed, "0.0"), 8)
      << Before(Distance(gear), 8);
  if (k > 0) out << Before(FormatNumber(gear.step, "0.0"), 8) << Before(FormatNumber(gear.afterNe, "0"), 10);
  out << '\n';
}

/// "2 parts: final 16-37 for 17-39; 3rd 21.25 for 20.24", "nothing".
std::string ChangeLine(const std::vector<PartChange>& changes) {
  if (changes.empty()) return ChangeText(changes);
  const int parts = CountParts(changes);
  return std::to_string(parts) + (parts == 1 ? " part: " : " parts: ") + ChangeText(changes);
}

}  // namespace

void WriteTableHead(std::ostream& out, const Workspace& workspace, const std::string& count) {
  out << workspace.MachineName << "   tyre " << ShortestText(workspace.TyreLength) << " m   shift "
      << workspace.ShiftNe << " rev/min   " << count << '\n';
}

void WriteTablePlan(std::ostream& out, const std::string& title, const FoundPlan& plan, int pairWidth) {
  out << '\n'
      << title << "   primary " << plan.primary << "   final " << plan.final << '\n'
      << "  gear  " << Behind("pair", pairWidth) << Before("request", 10) << Before("speed", 8)
      << Before("off", 8) << Before("step", 8) << Before("ne after", 10) << '\n';
  for (std::size_t k = 0; k < plan.gears.size(); ++k) WriteGear(out, k, plan.gears[k], pairWidth);
  if (plan.measures) {
    out << "  misses " << FormatNumber(MissOf(*plan.measures), "0.0") << " km/h at most, "
        << FormatNumber(SumOf(*plan.measures), "0.0") << " in all; steps "
        << FormatNumber(StepsOf(*plan.measures), "0") << '\n';
  }
  if (plan.changes) out << "  changes " << ChangeLine(*plan.changes) << '\n';
}

void WriteTable(std::ostream& out, const Workspace& workspace, const std::vector<FoundPlan>& plans) {
  WriteTableHead(out, workspace, std::to_string(plans.size()) + (plans.size() == 1 ? " plan" : " plans"));
  const int pairWidth = WidthOfPairs(plans);
  int number = 0;
  for (const FoundPlan& plan : plans)
    WriteTablePlan(out, "Plan " + std::to_string(++number), plan, pairWidth);
}

}  // namespace veldrin
