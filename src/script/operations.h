// Operations of the program that scripts call by their names: one line each in operations.cpp.
#pragma once

#include "script/script_world.h"

#include <string>
#include <vector>

namespace veldrin {

/// Runs an operation as one event of the program and keeps what it gave, empty where it gives nothing.
/// Throws ScriptError for an unknown name, a wrong number of arguments and one that does not fit.
void CallOperation(ScriptWorld& world, const std::string& name, const std::vector<std::string>& arguments);

}  // namespace veldrin
