// What keys do in a window as a whole.
#pragma once

#include "desktop/windows/stage.h"
#include "view/window.h"

#include <QKeyEvent>

namespace veldrin {

/// The control that Tab goes to from the one with the focus, in the order of the screen and round its ends.
/// Of the options of a panel, the chosen one alone is on the way. Null where there is none.
Control* NextByTab(const Window& window, bool forward);

/// The button that Escape stands for: the one that reads "Cancel" and can be pressed. Where a panel over the
/// window has one too, it is that. Null for none.
Control* CancelButton(const Window& window);

/// Tab and Shift+Tab. False for other keys.
bool ServeTab(Stage& stage, const Window& window, const QKeyEvent& event);

/// Escape: presses Cancel, and leaves a list that popped up; it closes a window that the user can close and
/// that has neither. Held down it does so once. False for other keys and where there is nothing to leave.
bool ServeEscape(Stage& stage, Window& window, const QKeyEvent& event);

/// A key that the window gets itself, as none of its controls has the focus or used the key. False for keys
/// that mean nothing here.
bool ServeWindowKey(Stage& stage, Window& window, const QWidget& widget, const QKeyEvent& event);

}  // namespace veldrin
