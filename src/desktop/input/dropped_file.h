// A list or plan file that was dropped on the main window.
#pragma once

#include "workspace/program.h"

#include <QMimeData>

#include <string>

namespace veldrin {

/// Whether a drag brings files of this machine along. Other links are text.
bool CarriesFiles(const QMimeData& data);

/// The path of the one file that a drag brings, as the program takes it, byte for byte; empty for none and
/// for several.
std::string DroppedPath(const QMimeData& data);

/// Whether a file may be loaded now: not while the main window is out of reach, asks a question or has put
/// its own menu of files out of use.
bool TakesDroppedFiles(const Program& program);

/// Opens a list or plan as a file of the command line is opened, a plan of another machine with its list.
/// Unsaved changes are asked about first, in the words of a load. Cancel leaves everything as it is, and so
/// does a file that is not there, is of no known kind, or belongs to a machine whose list cannot be had: that
/// is told in a box. Does nothing while TakesDroppedFiles is false. Raises what the readers raise.
void OpenDroppedFile(Program& program, const std::string& path);

}  // namespace veldrin
