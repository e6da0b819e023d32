// Shift+F1, the hint of what is in use.
#pragma once

#include "desktop/windows/stage.h"
#include "view/window.h"

#include <QKeyEvent>
#include <QWidget>

namespace veldrin {

/// Shift+F1 shows the hint of what F6 has reached, else of the control with the focus, below it; `inside` is
/// any widget of the window. False for other keys, and where there is nothing to tell, as of the buttons of
/// the message strip.
bool ServeHint(const Stage& stage, const Window& window, const QWidget& inside, const QKeyEvent& event);

}  // namespace veldrin
