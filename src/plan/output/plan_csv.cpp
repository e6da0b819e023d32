#include "plan/output/csv_field.h"
#include "plan/output/plan_output.h"
#include "runtime/conversion.h"

namespace veldrin {

std::string CsvField(const std::string& text) {
  const bool plain = text.find_first_of(",\"\r\n") == std::string::npos &&
                     (text.empty() || (text.front() != ' ' && text.back() != ' '));
  if (plain) return text;
  std::string field = "\"";
  for (const char c : text) field += c == '"' ? "\"\"" : std::string(1, c);
  return field + '"';
}

namespace {

/// The measures and changes of a plan, the same in each of its lines.
std::string Extras(const FoundPlan& plan) {
  std::string extras;
  if (plan.measures) {
    extras += ',' + ShortestText(MissOf(*plan.measures)) + ',' + ShortestText(SumOf(*plan.measures)) + ',' +
              ShortestText(StepsOf(*plan.measures));
  }
  if (plan.changes) {
    extras += ',' + std::to_string(CountParts(*plan.changes)) + ',' + CsvField(ChangeText(*plan.changes));
  }
  return extras;
}

}  // namespace

void WriteCsv(std::ostream& out, const std::vector<FoundPlan>& plans) {
  out << "plan,primary,final,gear,pair,request,speed,step,ne_after";
  if (!plans.empty() && plans[0].measures) out << ",miss,sum,steps";
  if (!plans.empty() && plans[0].changes) out << ",parts,changes";
  out << '\n';
  int number = 0;
  for (const FoundPlan& plan : plans) {
    ++number;
    int gearNumber = 0;
    for (const FoundGear& gear : plan.gears) {
      ++gearNumber;
      out << number << ',' << CsvField(plan.primary) << ',' << CsvField(plan.final) << ',' << gearNumber
          << ',' << CsvField(gear.pair) << ',' << ShortestText(gear.request) << ','
          << ShortestText(gear.speed) << ',';
      if (gearNumber > 1) out << ShortestText(gear.step);
      out << ',';
      if (gearNumber > 1) out << ShortestText(gear.afterNe);
      out << Extras(plan) << '\n';
    }
  }
}

}  // namespace veldrin
