#include "calc/gear_names.h"
#include "plan/output/columns.h"
#include "plan/sheet/sheet_output.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

#include <algorithm>
#include <functional>

namespace veldrin {

namespace {

using CellOf = std::function<std::string(const PlanSheet& sheet)>;

constexpr int kHeadWidth = 18;
constexpr int kGap = 3;

std::string Signed(double difference) {
  return FormatNumber(difference, "+#0.0;-#0.0;\\+-0");
}

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

}  // namespace

void WriteComparison(std::ostream& out, const std::vector<PlanSheet>& sheets) {
  std::vector<int> widths;
  for (const PlanSheet& sheet : sheets) {
    int width = std::max(Columns(sheet.title), Columns("000.0 +00.0"));
    for (const SheetGear& gear : sheet.gears) width = std::max(width, Columns(gear.pair));
    widths.push_back(width + kGap);
  }
  const auto line = [&](const std::string& head, const CellOf& cell) {
    out << Behind(head, kHeadWidth);
    for (std::size_t k = 0; k < sheets.size(); ++k) out << Before(cell(sheets[k]), widths[k]);
    out << '\n';
  };
  out << sheets.front().machine << '\n';
  line("", [](const PlanSheet& sheet) { return sheet.title; });
  line("tyre, m", [](const PlanSheet& sheet) { return ShortestText(sheet.tyreLength); });
  line("shift, rev/min", [](const PlanSheet& sheet) { return std::to_string(sheet.shiftNe); });
  line("primary", [](const PlanSheet& sheet) { return sheet.primary; });
  line("final", [](const PlanSheet& sheet) { return sheet.final; });
  const PlanSheet& first = sheets.front();
  const auto block = [&](const char* head, int from,
                         const std::function<std::string(const PlanSheet&, std::size_t)>& text) {
    out << '\n' << head << '\n';
    for (int gear = from; gear <= kGears; ++gear) {
      const auto k = static_cast<std::size_t>(gear - 1);
      line("  " + GearName(gear), [&](const PlanSheet& sheet) { return text(sheet, k); });
    }
  };
  block("pair", 1, [](const PlanSheet& sheet, std::size_t k) { return sheet.gears[k].pair; });
  block("speed, km/h", 1, [&](const PlanSheet& sheet, std::size_t k) {
    const std::string speed = FormatNumber(sheet.gears[k].speed, "0.0");
    if (&sheet == &first) return speed;
    return speed + Before(Signed(sheet.gears[k].speed - first.gears[k].speed), 6);
  });
  block("step, km/h", 2,
        [](const PlanSheet& sheet, std::size_t k) { return FormatNumber(sheet.gears[k].step, "0.0"); });
  block("after, rev/min", 2,
        [](const PlanSheet& sheet, std::size_t k) { return FormatNumber(sheet.gears[k].afterNe, "0"); });
  out << '\n';
  for (const PlanSheet& sheet : sheets) {
    if (&sheet != &first && sheet.changes) {
      const int parts = CountParts(*sheet.changes);
      out << sheet.title << ": " << parts << (parts == 1 ? " part changes: " : " parts change: ")
          << ChangeText(*sheet.changes) << '\n';
    }
    for (const std::string& note : Notes(sheet)) out << sheet.title << ": " << note << '\n';
    if (!FirstLine(sheet.remark).empty()) out << sheet.title << ": " << FirstLine(sheet.remark) << '\n';
  }
}

}  // namespace veldrin
