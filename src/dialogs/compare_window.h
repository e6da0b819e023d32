// The compare window: the plan of the main window and up to two plan files of the same machine beside each
// other. Each has a chart of its own on one place; the arrows bring one to the front together with its
// figures. The workspace keeps its plan, and nothing is written.
//
// All charts have the main window's scales. The main window is hidden by whoever opens this one, and shown
// again when it unloads.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the events of every compare window that will be loaded.
void AttachCompareWindow(Program& program);

}  // namespace veldrin
