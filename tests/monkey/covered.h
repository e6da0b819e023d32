// Controls that could be reached and yet are out of sight, because something lies over them. Users do not
// touch what they do not see.
#pragma once

#include "tests/monkey/script_text.h"
#include "workspace/program.h"

namespace veldrin::monkey {

/// Once opened, the panel of the requests stays behind that of the plan.
bool IsCovered(const Control& control);

/// Whether the line is about such a control.
bool IsAboutCovered(const Program& program, const Deed& deed);

}  // namespace veldrin::monkey
