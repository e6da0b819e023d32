#include "calc/gear_names.h"
#include "plan/output/columns.h"
#include "plan/sheet/sheet_output.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"
#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

namespace {

// The formats of the window's result columns, but for figures that it leaves blank.
constexpr char kSpeed[] = "0.0";
constexpr char kDifference[] = "+#0.0;-#0.0;\\+-0";
constexpr char kDeviation[] = "+###;-###;\\+-0";
constexpr char kRevolutions[] = "####0";

template <class Member>
int Width(const PlanSheet& sheet, const char* head, Member member) {
  int width = Columns(head);
  for (const SheetGear& gear : sheet.gears) width = std::max(width, Columns(gear.*member));
  return width;
}

bool HasParts(const PlanSheet& sheet) {
  return std::any_of(sheet.gears.begin(), sheet.gears.end(),
                     [](const SheetGear& gear) { return !gear.main.empty() || !gear.counter.empty(); });
}

/// The lines of the sheet: the heading when `gear` is nullptr.
void WriteLine(std::ostream& out, const PlanSheet& sheet, const SheetGear* gear, int number) {
  const auto cell = [&](const char* head, int width, const auto& text) {
    out << Before(gear == nullptr ? std::string(head) : std::string(text()), width);
  };
  const auto number1 = [](float value, const char* format) { return FormatNumber(value, format); };
  out << "  " << (gear == nullptr ? "gear  " : GearName(number) + "   ")
      << Behind(gear == nullptr ? "pair" : gear->pair, Width(sheet, "pair", &SheetGear::pair));
  cell("speed", 9, [&] { return number1(gear->speed, kSpeed); });
  cell("step", 8, [&] { return number > 1 ? number1(gear->step, kSpeed) : ""; });
  cell("ne after", 10, [&] { return number1(gear->afterNe, kRevolutions); });
  if (sheet.hasStored) {
    cell("stored", 9, [&] { return number1(gear->stored, kSpeed); });
    cell("step", 8, [&] { return number > 1 ? number1(gear->storedStep, kSpeed) : ""; });
    cell("off", 8, [&] { return number1(gear->difference, kDifference); });
    cell("+/- ne", 8, [&] { return number1(gear->deviation, kDeviation); });
  }
  if (HasParts(sheet)) {
    out << "   " << Behind(gear == nullptr ? "main" : gear->main, Width(sheet, "main", &SheetGear::main))
        << "   " << (gear == nullptr ? "counter" : gear->counter);
  }
  out << '\n';
}

void WriteRemark(std::ostream& out, const std::string& remark) {
  std::size_t begin = 0;
  while (begin < remark.size()) {
    const std::size_t end = std::min(remark.find('\n', begin), remark.size());
    out << "  " << remark.substr(begin, end - begin) << '\n';
    begin = end + 1;
  }
}

}  // namespace

void WriteSheetTable(std::ostream& out, const PlanSheet& sheet) {
  out << sheet.machine << "   tyre " << ShortestText(sheet.tyreLength) << " m   shift " << sheet.shiftNe
      << " rev/min   check " << ShortestText(sheet.checkNe) << " rev/min\n\n"
      << sheet.title << "   primary " << sheet.primary << "   final " << sheet.final << '\n';
  WriteLine(out, sheet, nullptr, 0);
  int number = 0;
  for (const SheetGear& gear : sheet.gears) WriteLine(out, sheet, &gear, ++number);
  for (const std::string& note : Notes(sheet)) out << "  " << note << '\n';
  if (!Trim(sheet.remark).empty()) {
    out << '\n';
    WriteRemark(out, sheet.remark);
  }
}

}  // namespace veldrin
