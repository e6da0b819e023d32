// The two halves of a click, and the second click of a double one. Together they are user::Click and
// user::DoubleClick; real pointers press and let go at different times, and between the two a window may be
// dragged or a press taken back.
#pragma once

#include "view/user_input.h"

namespace veldrin {

/// The pointer goes down: the window becomes the active one, the focus moves, MouseDown.
bool PressPointer(Control& control, int button);

/// The pointer goes up behind a press that was done: MouseUp and, inside of the control and with the left
/// button, Click, which also sets an option button. A press on a button is taken back by leaving it; other
/// controls hear of the way up wherever it is.
bool ReleasePointer(Control& control, int button, bool inside);

/// The second press of a double click: DblClick. False for controls that have none.
bool DoublePress(Control& control);

}  // namespace veldrin
