// Captions of windows that are designed in English, with the Japanese ones beside them.
#pragma once

#include "model/workspace.h"
#include "view/window.h"

namespace veldrin {

/// Where language and system are Japanese, writes the window's Japanese title, then in the order of the
/// screen those captions of labels and buttons that have a Japanese text, each after a font that has its
/// signs. Otherwise nothing is written. Raises nothing.
void TakeJapaneseCaptions(const Workspace& workspace, Window& window);

}  // namespace veldrin
