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
/// Kept: a number is looked for at the front of a whole number's box only, and ends at anything but a point.
/// So "6000-1" passes, and where the decimal separator is a comma "24000,9", which is then written as 24001.
void Validate(Program& program);

/// The number in box `box` of `Text1` as it is stored: read in its width, 32 bits of float for the tyre
/// length and 16 bits for the others, and written again. Raises faults 13 and 6.
std::string StoredNumber(const Program& program, int box);

}  // namespace veldrin
