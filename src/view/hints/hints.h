// The hint that a window's table has for a control, whatever state the program is in. What that state adds
// stands in hints/, above the workspace.
#pragma once

#include "view/window.h"

#include <string>

namespace veldrin {

/// Whether the pointer can rest on a control of this kind. Lines are too thin, a separator of a menu and the
/// ground of a window mean nothing, timers and dialogs are not to be seen.
bool CanBePointedAt(const Control& control);

/// The control's hint from its window's table, with gear and subscript filled in; lines end with LF. Empty
/// where there is none. Raises nothing.
std::string TableHint(const Control& control, bool inJapanese);

/// A gear as hints name it: "6th", 「6 速」.
std::string GearInHints(int gear, bool inJapanese);

}  // namespace veldrin
