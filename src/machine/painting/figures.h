// Figures that the program's pictures are made of, as paths.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

namespace veldrin {

/// A sprocket around `middle` with so many teeth, `radius` to their tips, and holes where it would be
/// drilled.
QPainterPath SprocketFigure(QPointF middle, int teeth, double radius);

/// The saw-tooth of six gears, within `room`: a line, not an area.
QPainterPath SawToothFigure(const QRectF& room);

}  // namespace veldrin
