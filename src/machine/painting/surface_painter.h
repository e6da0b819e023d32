// Paints what is drawn on a surface, at any resolution.
#pragma once

#include "platform/canvas.h"

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace veldrin {

/// Where a drawing goes: the surface's whole size is stretched over `area`, text and pens grow by
/// `pixelsPerTwip`. `background` is what lies below the drawing; inverting fills need to know it.
struct DrawingPlace {
  QRectF area;
  double pixelsPerTwip;
  QColor background;
};

/// Paints the primitives, each in the user scale that was in force when it was drawn. Lines are smooth; what
/// lies beyond the area is cut off.
void PaintDrawing(QPainter& painter, const std::vector<Primitive>& drawing, const DrawingPlace& place);

}  // namespace veldrin
