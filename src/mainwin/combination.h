// The combination panel `Picture9` over the chart: which part on the main shaft and which on the counter
// shaft each gear pair of the plan takes. The machine's combination file beside its list is a lookup table,
// read from top to bottom each time the panel is filled:
//
//   gear, pair, main, count                                         any gear of a machine in `Separate34`,
//                                                                   any gear but the 3rd of the others
//   3, pair of 3rd, 4, pair of 4th, main, count of 3rd, of 4th      one main-shaft part for 3rd and 4th
//
// `menu_comb` toggles the panel; under "COMB", from a change of a gear label, it fills an open one anew.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Whether the machine's 3rd and 4th gears have a main-shaft part each: its key occurs in `Separate34`, the
/// case of letters aside. The empty key always does. Raises nothing.
bool HasSeparateParts(const Workspace& workspace);

/// Font size in points of the part that 3rd and 4th gear share: the longer its name the smaller, at most 11.
/// Raises fault 11 for the empty name.
int JointPartFontSize(const std::string& part);

/// Whether the panel is open. The slot is the rule: a change of plan refills it, and reports carry its
/// columns, as long as it can be seen.
bool ShowsParts(const Form2& form2);

/// Binds `menu_comb`.
void AttachCombination(Program& program);

}  // namespace veldrin
