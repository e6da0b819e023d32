// F1, the user's guide.
#pragma once

#include "desktop/windows/stage.h"
#include "view/window.h"

#include <QKeyEvent>
#include <QWidget>

namespace veldrin {

/// F1 asks the stage for the section of what F6 has reached, else of the control with the focus, else of the
/// window; `inside` is any widget of the window. Held down it does so once. False for other keys, with others
/// held, and where the guide has no such section.
bool ServeHelp(const Stage& stage, const Window& window, const QWidget& inside, const QKeyEvent& event);

}  // namespace veldrin
