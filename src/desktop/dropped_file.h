// A list or plan file that was dropped on the main window.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Opens it as a file of the command line is opened, a plan of another machine with its list. Unsaved changes
/// are asked about first, in the words of a load; Cancel leaves everything as it is. A file of no known kind
/// is told in a box. Raises what the readers raise.
void OpenDroppedFile(Program& program, const std::string& path);

}  // namespace veldrin
