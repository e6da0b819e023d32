// Numbers as texts in the system's spelling, and the repair of the separator in those that come from
// elsewhere.
#pragma once

#include "model/workspace.h"

#include <string>

namespace veldrin {

/// `text` with its separator brought to the system's: where `DecimalSep` is a comma, the first "." becomes
/// ","; on every other system the first "," becomes ".". Raises nothing.
/// Kept: only one character is replaced, so "1.234.5" stays no number.
std::string FixDecimal(const Workspace& workspace, const std::string& text);

/// The number of a text from a file, the store or a box, its separator repaired by FixDecimal. Raises faults
/// 13 and 6.
float RepairedSingle(const Workspace& workspace, const std::string& text);

/// The number of a text with the system's separator. Raises faults 13 and 6.
double SystemNumber(const Workspace& workspace, const std::string& text);

/// The same in 16 bits, half to even. Raises faults 13 and 6.
std::int16_t SystemInt16(const Workspace& workspace, const std::string& text);

/// The same in 32 bits, as the store keeps colours. Raises faults 13 and 6.
std::int32_t SystemInt32(const Workspace& workspace, const std::string& text);

}  // namespace veldrin
