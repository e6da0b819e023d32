// Fonts and colours of the view as Qt has them.
#pragma once

#include "platform/canvas.h"
#include "view/controls.h"

#include <QColor>
#include <QFont>
#include <QPaintDevice>

namespace veldrin {

/// A font so large that its points are 1/72 of `pixelsPerInch` pixels. The names of the Japanese fonts stand
/// for the ones that the system has in their place.
QFont FontFor(const Font& font, double pixelsPerInch);

/// Pixels from the top of a line to the line that its letters stand on, and the height of such a line, for a
/// font that FontFor gave. A line of the Japanese fonts is as high as the square cell of their characters;
/// fonts that stand in for them have room above and below it, and are placed by the cell.
double AscentOf(const QFont& font, QPaintDevice* device);
double LineHeightOf(const QFont& font, QPaintDevice* device = nullptr);

/// The font of a control at a zoom.
QFont FontFor(const PlacedControl& control, double zoom);

QColor ToQColor(Colour colour);
Colour ToColour(const QColor& colour);

/// Pixels in an inch of the program at 100 percent: 1440 twips, 15 to the pixel.
inline constexpr double kPixelsPerInch = 96;
inline constexpr double kTwipsPerInch = 1440;

}  // namespace veldrin
