// Repair of the decimal separator in numbers that come from a file or from the store.
#pragma once

#include "model/workspace.h"

#include <string>

namespace veldrin {

/// `text` with its separator brought to the system's: where `DecimalSep` is a comma, the first "." becomes
/// ","; on every other system the first "," becomes ".". Raises nothing.
/// Kept: only one character is replaced, so "1.234.5" stays no number.
std::string FixDecimal(const Workspace& workspace, const std::string& text);

}  // namespace veldrin
