// The checks that the settings have to pass before they are written.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// `ValidationResult` in the settings window.
inline constexpr char kValid[] = "OK";
inline constexpr char kInvalid[] = "NG";

/// Checks language, characters and ranges of the loaded settings window, in this order, and sets
/// `ValidationResult`. The first failure ends the checks: its box is emptied, or holds one blank after a
/// character that is none of a number. Raises nothing.
/// Kept: a number is looked for at the front of a whole number's box only, so "6000-1" passes.
void Validate(Program& program);

}  // namespace veldrin
