// Controls that could be reached and yet are out of sight, because something lies over them. Users do not
// touch what they do not see.
#pragma once

#include "script/script_world.h"
#include "tests/monkey/script_text.h"

namespace veldrin::monkey {

/// Once opened, the panel of the requests stays behind that of the plan.
bool IsCovered(const Control& control);

/// Whether the line is about such a control. The program has to run.
bool IsAboutCovered(ScriptWorld& world, const Deed& deed);

}  // namespace veldrin::monkey
