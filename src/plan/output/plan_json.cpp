#include "plan/output/json_text.h"
#include "plan/output/plan_output.h"
#include "plan/output/why.h"
#include "runtime/conversion.h"

namespace veldrin {

std::string JsonText(const std::string& text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string json = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json += '\\';
      json += c;
    } else if (byte < 0x20) {
      json += "\\u00";
      json += kDigits[byte >> 4];
      json += kDigits[byte & 0x0F];
    } else {
      json += c;
    }
  }
  return json + '"';
}

namespace {

void WriteGear(std::ostream& out, int number, const FoundGear& gear) {
  out << "        {\"gear\": " << number << ", \"pair\": " << JsonText(gear.pair)
      << ", \"request\": " << ShortestText(gear.request) << ", \"speed\": " << ShortestText(gear.speed)
      << ", \"step\": " << (number > 1 ? ShortestText(gear.step) : "null")
      << ", \"ne_after\": " << (number > 1 ? ShortestText(gear.afterNe) : "null") << '}';
}

void WriteJsonChanges(std::ostream& out, const std::vector<PartChange>& changes) {
  out << ",\n      \"parts\": " << CountParts(changes) << ", \"changes\": [";
  const char* separator = "";
  for (const PartChange& change : changes) {
    out << separator << JsonText(ChangeText(change));
    separator = ", ";
  }
  out << ']';
}

}  // namespace

void WriteJsonPlan(std::ostream& out, const FoundPlan& plan) {
  out << "    {\n      \"primary\": " << JsonText(plan.primary)
      << ",\n      \"final\": " << JsonText(plan.final) << ",\n      \"gears\": [\n";
  int number = 0;
  for (const FoundGear& gear : plan.gears) {
    if (number > 0) out << ",\n";
    WriteGear(out, ++number, gear);
  }
  out << "\n      ]";
  if (plan.measures) {
    out << ",\n      \"miss\": " << ShortestText(MissOf(*plan.measures))
        << ", \"sum\": " << ShortestText(SumOf(*plan.measures))
        << ", \"steps\": " << ShortestText(StepsOf(*plan.measures));
  }
  if (plan.changes) WriteJsonChanges(out, *plan.changes);
  out << "\n    }";
}

void WriteJson(std::ostream& out, const Workspace& workspace, const std::vector<FoundPlan>& plans,
               const NearestPlans* why) {
  out << "{\n  \"machine\": " << JsonText(workspace.MachineName)
      << ",\n  \"tyre\": " << ShortestText(workspace.TyreLength) << ",\n  \"shift_ne\": " << workspace.ShiftNe
      << ",\n  \"plans\": [";
  const char* separator = "\n";
  for (const FoundPlan& plan : plans) {
    out << separator;
    WriteJsonPlan(out, plan);
    separator = ",\n";
  }
  out << (plans.empty() ? "]" : "\n  ]");
  if (why != nullptr) {
    out << ",\n  \"why\": ";
    WriteWhyJson(out, workspace, *why);
  }
  out << "\n}\n";
}

}  // namespace veldrin
