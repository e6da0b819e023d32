// The colour dialog: the colours of the six gears, those in use above those picked. It is the one place where
// `GearColour` is set while the program runs, and where it is stored.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the events of every colour dialog that will be loaded.
void AttachColourDialog(Program& program);

}  // namespace veldrin
