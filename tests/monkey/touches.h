// What a user may do to one control or window, each by its kind and as often as people do it.
#pragma once

#include "tests/monkey/random.h"
#include "workspace/program.h"

#include <string>

namespace veldrin::monkey {

/// How often the control is used among those in reach; 0 for what nobody touches.
int WeightOf(const Control& control);

/// A line that does something to the control.
std::string Touch(Random& random, const Program& program, const Control& control);

/// A line that does something to a window as a whole: its size, place, state or its end.
std::string TouchWindow(Random& random, const Window& window);

}  // namespace veldrin::monkey
