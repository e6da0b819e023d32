#include "plan/plan_output.h"
#include "runtime/conversion.h"

namespace veldrin {

namespace {

/// A text as a field: in quotation marks, those inside doubled, where it would not be read back without.
std::string Field(const std::string& text) {
  const bool plain = text.find_first_of(",\"\r\n") == std::string::npos &&
                     (text.empty() || (text.front() != ' ' && text.back() != ' '));
  if (plain) return text;
  std::string field = "\"";
  for (const char c : text) field += c == '"' ? "\"\"" : std::string(1, c);
  return field + '"';
}

}  // namespace

void WriteCsv(std::ostream& out, const std::vector<FoundPlan>& plans) {
  out << "plan,primary,final,gear,pair,request,speed,step,ne_after\n";
  int number = 0;
  for (const FoundPlan& plan : plans) {
    ++number;
    int gearNumber = 0;
    for (const FoundGear& gear : plan.gears) {
      ++gearNumber;
      out << number << ',' << Field(plan.primary) << ',' << Field(plan.final) << ',' << gearNumber << ','
          << Field(gear.pair) << ',' << ShortestText(gear.request) << ',' << ShortestText(gear.speed) << ',';
      if (gearNumber > 1) out << ShortestText(gear.step);
      out << ',';
      if (gearNumber > 1) out << ShortestText(gear.afterNe);
      out << '\n';
    }
  }
}

}  // namespace veldrin
