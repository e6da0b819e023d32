// Hints as users get them: what a control shows or does in the present state of the program, and why it
// cannot be used where that is so. Tooltips, screen readers, Shift+F1 and scripts all ask here.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// The control's hint in the language in force, and in a line of its own behind that why it is out of use,
/// where there is one reason. Lines end with LF. Empty for what has no hint (view/hints/hints.h). Raises
/// nothing.
std::string Hint(const Program& program, const Control& control);

/// The value that a control shows by itself: a text, a number; empty for none. Raises nothing.
std::string ValueOf(const Control& control);

/// The hint with a value behind its first line, ": 98.4", unless it begins with the value as the hint of a
/// heading does; the value alone where there is no hint. Raises nothing.
std::string HintWithValue(const Program& program, const Control& control, const std::string& value);

}  // namespace veldrin
