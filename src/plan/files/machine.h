// A machine as the console holds it: the workspace of a list, without windows.
#pragma once

#include "model/workspace.h"

#include <string>

namespace veldrin {

/// Fills the tables from a list's text as the program's window does; what the list does not say is as in a
/// new installation. Raises nothing; of a list that cannot be read what comes before the first wrong keyword
/// is filled.
Workspace ReadMachine(const std::string& listText);

}  // namespace veldrin
