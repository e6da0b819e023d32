// A window's captions in the language that it is not designed in. Both stand beside each other in its form.
#pragma once

#include "model/workspace.h"
#include "view/window.h"

namespace veldrin {

/// Whether language and system are Japanese, so that Japanese captions can be read.
bool ReadsJapanese(const Workspace& workspace);

/// Of a window that is designed in Japanese: all fonts become Arial, then come its English title and, in the
/// order of the screen, the captions that have an English text. Raises nothing.
void TakeEnglishCaptions(Window& window);

/// Of a window that is designed in English, where ReadsJapanese: its Japanese title, then in the order of the
/// screen those captions of labels and buttons that have a Japanese text, each after a font that has its
/// signs. Otherwise nothing is written. Raises nothing.
void TakeJapaneseCaptions(const Workspace& workspace, Window& window);

}  // namespace veldrin
