// Mouse and keyboard of the chooser's drive, folder, file and name boxes.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds `Drive1`, `Dir1`, `File1`, `Combo1` and `Combo2`.
void AttachChooserBoxes(Program& program);

}  // namespace veldrin
