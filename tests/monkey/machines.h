// The machine that a sequence begins on: system, settings, lists and plans, among them such as are refused.
#pragma once

#include "tests/monkey/random.h"

#include <string>
#include <vector>

namespace veldrin::monkey {

/// The lines of a script that make the machine, and start the program on it.
std::vector<std::string> MakeMachine(Random& random);

/// A line that starts the program, with or without a file on its command line.
std::string StartLine(Random& random);

}  // namespace veldrin::monkey
