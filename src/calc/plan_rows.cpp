#include "calc/plan_rows.h"

#include "runtime/conversion.h"

#include <algorithm>

namespace veldrin {

std::string ListText(const PlanRows& plan) {
  std::string text = std::to_string(plan.primary) + "," + std::to_string(plan.final);
  for (int gear = 1; gear <= kGears; ++gear) text += "," + std::to_string(plan.gear[gear]);
  return text;
}

void ReadListText(const std::string& text, char decimalSeparator, PlanRows& plan) {
  std::size_t at = 0;
  const auto next = [&] {
    const std::size_t end = std::min(text.find(',', at), text.size());
    const std::string field = text.substr(at, end - at);
    at = std::min(end + 1, text.size());
    return ParseInt16(field, decimalSeparator);
  };
  plan.primary = next();
  plan.final = next();
  for (int gear = 1; gear <= kGears; ++gear) plan.gear[gear] = next();
}

}  // namespace veldrin
