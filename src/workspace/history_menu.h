// The history's entries in the menu: `menu_files`(1) to `menu_files`(`HistoryCount`), headed and followed by
// separators and the entry that clears them.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Removes every entry, hides the separators and the clearing entry, and sets `HistoryCount` to 0.
void EmptyHistoryMenu(Program& program);

}  // namespace veldrin
