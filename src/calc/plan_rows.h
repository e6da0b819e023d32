// A plan that a search has found, and the text by which `PlanList` keeps it: eight row numbers joined by ",",
// primary, final and gears 1 to 6, such as "2,17,3,1,4,2,2,5".
#pragma once

#include "model/workspace.h"

#include <cstdint>
#include <string>

namespace veldrin {

/// Rows of the machine's tables, from 1.
struct PlanRows {
  std::int16_t primary = 0;
  std::int16_t final = 0;
  Table<std::int16_t, 1, kGears> gear;
};

/// The plan's text in `PlanList`. Raises nothing.
std::string ListText(const PlanRows& plan);

/// Fills `plan` from a text of `PlanList`, number by number; what stands behind the eighth is not looked at.
/// Raises fault 13 for fewer than eight numbers, as the gaps of the list have, and 6 for a number beyond 16
/// bits; what was read before stays.
void ReadListText(const std::string& text, char decimalSeparator, PlanRows& plan);

}  // namespace veldrin
