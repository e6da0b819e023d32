// What people do in one go, such as opening a plan or searching for one: several lines, which the random user
// follows most of the time to their end.
#pragma once

#include "tests/monkey/random.h"
#include "workspace/program.h"

#include <string>
#include <vector>

namespace veldrin::monkey {

/// The lines of a habit.
std::vector<std::string> MakeHabit(Random& random, const Program& program);

}  // namespace veldrin::monkey
