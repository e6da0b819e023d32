// Where controls lie, in logical pixels.
//
// A child is placed in twips, but for the children of a picture whose surface has a user scale that begins at
// (0, 0) and runs downward: these are placed in the units of that scale, stretched over the picture. A label
// that the right edge of its panel would cut stands back inside it: the numeral at the end of the chart's
// axis. So does one at the top edge whose middle, and so its tick, is inside; another is not to be seen.
#pragma once

#include "desktop/windows/zoom.h"
#include "view/controls.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QRectF>

namespace veldrin {

/// The border of a control, as wide as a pixel of the program.
double BorderPixels(const Control& control, const Zoom& zoom);

/// A control's rectangle in that of its parent, to a fraction of a pixel. Lines have the rectangle that their
/// ends span, which may be empty.
QRectF PlaceInParent(const Control& control, const Zoom& zoom);

/// The same in whole pixels. Neighbours without a gap stay so; a line is as thick as its pen.
QRect PixelsInParent(const Control& control, const Zoom& zoom);

/// Pixels between the ends of a line control and the edge of its rectangle.
int LineWidth(const Zoom& zoom);

/// The size of the area that a window's controls lie on.
QSize ClientPixels(const Window& window, const Zoom& zoom);

/// The left top corner for a window of this place and size, frame included, at which a good piece of its
/// title bar lies on one of the screens. A window that can be taken stays where it is; another goes, whole if
/// it can, onto the nearest screen.
QPoint CornerInReach(const QRect& frame, int titleHeight, const QList<QRect>& screens);

}  // namespace veldrin
