// A list or plan file that was dropped on the main window.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Whether a file may be loaded now: not while the main window is out of reach, asks a question or has put
/// its own menu of files out of use.
bool TakesDroppedFiles(const Program& program);

/// Opens a list or plan as a file of the command line is opened, a plan of another machine with its list; the
/// main window becomes the active one. Unsaved changes are asked about first, in the words of a load. Cancel
/// leaves everything as it is, and so does a file that is not there, is of no known kind, or belongs to a
/// machine whose list cannot be had: that is told in a box. False, and nothing done, while TakesDroppedFiles
/// is false. Raises what the readers raise.
bool OpenDroppedFile(Program& program, const std::string& path);

}  // namespace veldrin
