// Machine lists and combination files as text.
#pragma once

#include "plan/csv/parts_csv.h"

#include <string>

namespace veldrin {

/// The list file of the table. Raises nothing.
std::string MachineListText(const PartsTable& parts);

/// The combination file of the table.
std::string CombinationText(const PartsTable& parts);

/// Whether a text can stand in a field of such a file: what needs quotation marks must hold none.
bool FitsField(const std::string& text);

}  // namespace veldrin
