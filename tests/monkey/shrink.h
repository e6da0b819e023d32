// A failing sequence, made as short as it goes: lines are left out as long as the same rule still finds
// something.
#pragma once

#include "tests/monkey/walk.h"

namespace veldrin::monkey {

Outcome Shrink(const Outcome& failed);

}  // namespace veldrin::monkey
