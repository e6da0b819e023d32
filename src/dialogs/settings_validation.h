// The checks that the settings have to pass before they are written.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// `ValidationResult` in the settings window.
inline constexpr char kValid[] = "OK";
inline constexpr char kInvalid[] = "NG";

/// Checks language, characters and ranges of the loaded settings window, in this order, and sets
/// `ValidationResult`. The first failure ends the checks: its box is emptied, or holds one blank after a
/// character that is none of a number. Raises nothing.
/// Kept: a whole number's box is read by two rules. The check looks for a number at the front only, where
/// anything but a point ends it; StoredNumber takes the whole text in the system's spelling. So "6000-1"
/// passes and is a fault when it is to be stored, and where the decimal separator is a comma "24000,9" passes
/// and is stored as 24001. By one rule the first would be refused in the window, and so would the second.
void Validate(Program& program);

/// The number in box `box` of `Text1` as it is stored: read in its width, 32 bits of float for the tyre
/// length and 16 bits for the others, and written again. Raises faults 13 and 6.
std::string StoredNumber(const Program& program, int box);

}  // namespace veldrin
