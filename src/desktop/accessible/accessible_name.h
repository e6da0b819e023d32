// Names of controls for those who cannot see where they stand.
#pragma once

#include "view/controls.h"

#include <QString>

namespace veldrin {

/// The control's own caption, or else that of the label that heads it: beside it on the left, above, or close
/// below. A row of a column of labels stands for the column's head. Elements of an array add their subscript,
/// gears for the most part. A label's text and a window's title speak for themselves: no name, and so have
/// panels. What a window says of a control in place of a picture comes before all that.
QString AccessibleName(const Control& control);

/// What a spin button turns: the text of the label that is seen nearest in its row, on either side; empty
/// where there is none.
QString AccessibleValue(const Control& control);

}  // namespace veldrin
