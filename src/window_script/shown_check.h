// Holds what widgets show against the slots that they stand for.
#pragma once

#include "desktop/windows/form_widget.h"
#include "script/script_hand.h"

#include <vector>

namespace veldrin {

/// Everything of a loaded window that is shown otherwise than its slots say: texts, visibility, enabled
/// state, colours, places, values, order, focus, and the window's own title and size.
std::vector<Mismatch> DifferencesIn(FormWidget& form, const Stage& stage);

}  // namespace veldrin
