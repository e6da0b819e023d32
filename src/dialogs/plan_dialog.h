// The plan dialog: pages through the plans that a search found and takes one into the workspace, or goes back
// to the request entry. The main window is hidden meanwhile.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the events of every plan dialog that will be loaded.
void AttachPlanDialog(Program& program);

}  // namespace veldrin
