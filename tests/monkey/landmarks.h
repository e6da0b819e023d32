// Where random users have been. A run that never came to a mode, a question or a window has not judged it.
#pragma once

#include "tests/monkey/oracle/oracle.h"

#include <map>
#include <string>
#include <vector>

namespace veldrin::monkey {

/// How often each was come to, by its name.
using Landmarks = std::map<std::string, int>;

/// Counts what the look sees.
void Note(const Look& look, Landmarks& landmarks);

/// What every long run must have come to, and this one has not.
std::vector<std::string> Missing(const Landmarks& landmarks);

}  // namespace veldrin::monkey
