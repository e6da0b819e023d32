#include "plan/output/json_text.h"
#include "plan/sheet/sheet_output.h"
#include "runtime/conversion.h"

namespace veldrin {

namespace {

void WriteGear(std::ostream& out, const PlanSheet& sheet, int number, const SheetGear& gear) {
  const auto orNull = [](bool there, float value) {
    return there ? ShortestText(value) : std::string("null");
  };
  out << "        {\"gear\": " << number << ", \"pair\": " << JsonText(gear.pair)
      << ", \"speed\": " << ShortestText(gear.speed) << ", \"step\": " << orNull(number > 1, gear.step)
      << ", \"ne_after\": " << orNull(number > 1, gear.afterNe)
      << ", \"stored\": " << orNull(sheet.hasStored, gear.stored)
      << ", \"difference\": " << orNull(sheet.hasStored, gear.difference)
      << ", \"deviation\": " << orNull(sheet.hasStored, gear.deviation)
      << ", \"main\": " << JsonText(gear.main) << ", \"counter\": " << JsonText(gear.counter) << '}';
}

template <class Items, class Write>
void WriteArray(std::ostream& out, const Items& items, const char* between, const Write& write) {
  const char* separator = "";
  for (const auto& item : items) {
    out << separator;
    write(item);
    separator = between;
  }
}

void WriteSheet(std::ostream& out, const PlanSheet& sheet) {
  out << "    {\n      \"title\": " << JsonText(sheet.title)
      << ",\n      \"tyre\": " << ShortestText(sheet.tyreLength) << ", \"shift_ne\": " << sheet.shiftNe
      << ", \"check_ne\": " << ShortestText(sheet.checkNe)
      << ",\n      \"primary\": " << JsonText(sheet.primary)
      << ",\n      \"final\": " << JsonText(sheet.final) << ",\n      \"remark\": " << JsonText(sheet.remark)
      << ",\n      \"gears\": [\n";
  int number = 0;
  WriteArray(out, sheet.gears, ",\n", [&](const SheetGear& gear) { WriteGear(out, sheet, ++number, gear); });
  out << "\n      ],\n      \"notes\": [";
  WriteArray(out, Notes(sheet), ", ", [&](const std::string& note) { out << JsonText(note); });
  out << ']';
  if (sheet.changes) {
    out << ",\n      \"parts\": " << CountParts(*sheet.changes) << ", \"changes\": [";
    WriteArray(out, *sheet.changes, ", ",
               [&](const PartChange& change) { out << JsonText(ChangeText(change)); });
    out << ']';
  }
  out << "\n    }";
}

void WriteTyre(std::ostream& out, const TyreFit& tyre) {
  out << ",\n  \"tyre_fit\": {\"length\": " << ShortestText(tyre.length) << ", \"spread\": ";
  out << (tyre.points.size() > 1 ? ShortestText(tyre.spread) : "null") << ", \"points\": [\n";
  WriteArray(out, tyre.points, ",\n", [&](const FittedPoint& point) {
    out << "    {\"speed\": " << ShortestText(point.point.speed)
        << ", \"ne\": " << ShortestText(point.point.ne) << ", \"gear\": " << point.point.gear
        << ", \"length\": " << ShortestText(point.length) << ", \"off\": " << ShortestText(point.off)
        << ", \"fits\": " << (point.fits ? "true" : "false") << '}';
  });
  out << "\n  ]}";
}

}  // namespace

void WriteSheetJson(std::ostream& out, const std::vector<PlanSheet>& sheets, const TyreFit* tyre) {
  out << "{\n  \"machine\": " << JsonText(sheets.empty() ? "" : sheets.front().machine)
      << ",\n  \"shown\": [\n";
  WriteArray(out, sheets, ",\n", [&](const PlanSheet& sheet) { WriteSheet(out, sheet); });
  out << "\n  ]";
  if (tyre != nullptr) WriteTyre(out, *tyre);
  out << "\n}\n";
}

}  // namespace veldrin
