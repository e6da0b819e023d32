// The file chooser: the one file window of the program. It is loaded once, shown and hidden, and serves its
// roles one after the other; its prompt line `Label4`, by caption and visibility, is its state of
// confirmation. Nothing here is told in a message box.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the chooser's load and activation, its buttons and its boxes.
void AttachFileChooser(Program& program);

}  // namespace veldrin
