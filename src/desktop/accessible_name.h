// Names of controls for those who cannot see where they stand.
#pragma once

#include "view/controls.h"

#include <QString>

namespace veldrin {

/// The control's own caption, or else that of the label that heads it: the one beside it on the left, or the
/// nearest above. Elements of an array add their subscript, gears for the most part.
QString AccessibleName(const Control& control);

}  // namespace veldrin
