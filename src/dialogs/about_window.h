// The About window: the program's version, a link to the home page, and figures of the machine as they were
// when the window was loaded. It has no frame: it is dragged by its background, rolled up to its title strip
// and closed with pictures of its own.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the events of every About window that will be loaded.
void AttachAboutWindow(Program& program);

}  // namespace veldrin
