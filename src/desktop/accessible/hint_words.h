// Hints of controls as the desktop shows and speaks them.
#pragma once

#include "view/control.h"

#include <QString>

namespace veldrin {

struct Program;

/// The control's hint in the present state of the program; empty where it has none, and without a program.
QString HintOf(const Program* program, const Control& control);

/// The same for those who hear it: with the value that the control shows, and that of what a spin button
/// turns.
QString SpokenHintOf(const Program* program, const Control& control);

}  // namespace veldrin
