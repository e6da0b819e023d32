// The file chooser: the one file window of the program.
#pragma once

#include "workspace/program.h"

namespace veldrin {

void AttachFileChooser(Program& program);

}  // namespace veldrin
