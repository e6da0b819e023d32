#include "plan/output/csv_field.h"
#include "plan/sheet/sheet_output.h"
#include "runtime/conversion.h"

namespace veldrin {

void WriteSheetCsv(std::ostream& out, const std::vector<PlanSheet>& sheets) {
  out << "plan,tyre,shift_ne,primary,final,gear,pair,speed,step,ne_after,stored,difference,deviation,main,"
         "counter,"
         "parts,changes\n";
  for (const PlanSheet& sheet : sheets) {
    int number = 0;
    for (const SheetGear& gear : sheet.gears) {
      ++number;
      const auto ifAboveFirst = [&](float value) { return number > 1 ? ShortestText(value) : std::string(); };
      const auto ifStored = [&](float value) {
        return sheet.hasStored ? ShortestText(value) : std::string();
      };
      out << CsvField(sheet.title) << ',' << ShortestText(sheet.tyreLength) << ',' << sheet.shiftNe << ','
          << CsvField(sheet.primary) << ',' << CsvField(sheet.final) << ',' << number << ','
          << CsvField(gear.pair) << ',' << ShortestText(gear.speed) << ',' << ifAboveFirst(gear.step) << ','
          << ifAboveFirst(gear.afterNe) << ',' << ifStored(gear.stored) << ',' << ifStored(gear.difference)
          << ',' << ifStored(gear.deviation) << ',' << CsvField(gear.main) << ',' << CsvField(gear.counter)
          << ',';
      if (sheet.changes) out << CountParts(*sheet.changes) << ',' << CsvField(ChangeText(*sheet.changes));
      if (!sheet.changes) out << ',';
      out << '\n';
    }
  }
}

}  // namespace veldrin
