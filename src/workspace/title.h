// The main window's title: its parts, and the mark of unsaved changes.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// "prefix[MACHINE]".
std::string MachineTitle(const Workspace& workspace);

/// "prefix[MACHINE] - [FOLDER] - [file]" with the last folder of `DataPath`.
std::string PlanTitle(const Program& program, const std::string& fileName);

/// Whether the title holds the mark of unsaved changes.
bool TitleIsMarked(const Program& program);

/// Puts the mark at the title's end, unless it stands there already.
void MarkTitle(Program& program);

/// The title up to the mark's first occurrence, whole without one.
std::string UnmarkedTitle(const Program& program);

/// Cuts the title just before the mark's first occurrence.
void UnmarkTitle(Program& program);

}  // namespace veldrin
