#include "machine/painting/surface_painter.h"

#include "machine/painting/fonts.h"

#include <QImage>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

/// Carries one primitive from the units of its scale to pixels.
class PrimitivePainter {
 public:
  PrimitivePainter(QPainter& painter, const DrawingPlace& place, const Scale& scale)
      : painter_(&painter), place_(&place), scale_(scale) {}

  void operator()(const LinePrimitive& line) const {
    QPen pen(ToQColor(line.colour), PenWidth(line.width), StyleOf(line.style), Qt::FlatCap, Qt::RoundJoin);
    painter_->setRenderHint(QPainter::Antialiasing, true);
    painter_->setPen(pen);
    QPointF from = Point(line.x1, line.y1);
    QPointF to = Point(line.x2, line.y2);
    // Upright and level lines are sharp in the middle of a pixel.
    if (line.x1 == line.x2) from.setX(Sharp(from.x(), pen.widthF())), to.setX(from.x());
    if (line.y1 == line.y2) from.setY(Sharp(from.y(), pen.widthF())), to.setY(from.y());
    painter_->drawLine(from, to);
  }

  void operator()(const TextPrimitive& text) const {
    painter_->setFont(FontFor(text.font, place_->pixelsPerTwip * kTwipsPerInch));
    painter_->setPen(ToQColor(text.colour));
    const double ascent = AscentOf(painter_->font(), painter_->device());
    painter_->drawText(Point(text.x, text.y) + QPointF(0, ascent), QString::fromStdString(text.text));
  }

  void operator()(const FillPrimitive& fill) const {
    const QRectF rect = QRectF(Point(fill.x1, fill.y1), Point(fill.x2, fill.y2)).normalized();
    painter_->setRenderHint(QPainter::Antialiasing, false);
    if (fill.mode == DrawMode::Copy) {
      painter_->fillRect(rect, ToQColor(fill.colour));
      return;
    }
    painter_->setCompositionMode(QPainter::RasterOp_NotSourceXorDestination);
    painter_->fillRect(rect, ToQColor(fill.colour));
    painter_->setCompositionMode(QPainter::CompositionMode_SourceOver);
  }

 private:
  QPointF Point(double x, double y) const {
    const QRectF& area = place_->area;
    const double width = scale_.width == 0 ? 1 : scale_.width;
    const double height = scale_.height == 0 ? 1 : scale_.height;
    return {area.left() + (x - scale_.left) / width * area.width(),
            area.top() + (y - scale_.top) / height * area.height()};
  }

  double PenWidth(int width) const {
    return std::max(1.0, std::max(1, width) * place_->pixelsPerTwip * kTwipsPerInch / kPixelsPerInch);
  }

  static double Sharp(double place, double width) {
    const bool odd = static_cast<int>(std::lround(width)) % 2 == 1;
    return odd ? std::floor(place) + 0.5 : std::round(place);
  }

  static Qt::PenStyle StyleOf(int style) {
    switch (style) {
      case 1:
        return Qt::DashLine;
      case kPenDotted:
        return Qt::DotLine;
      case kPenDashDot:
        return Qt::DashDotLine;
      case kPenDashDotDot:
        return Qt::DashDotDotLine;
      default:
        return Qt::SolidLine;
    }
  }

  QPainter* painter_;
  const DrawingPlace* place_;
  Scale scale_;
};

bool Inverts(const Primitive& primitive) {
  const auto* fill = std::get_if<FillPrimitive>(&primitive.shape);
  return fill != nullptr && fill->mode == DrawMode::NotXorPen;
}

void PaintAll(QPainter& painter, const std::vector<Primitive>& drawing, const DrawingPlace& place) {
  for (const Primitive& primitive : drawing) {
    std::visit(PrimitivePainter(painter, place, primitive.scale), primitive.shape);
  }
}

}  // namespace

void PaintDrawing(QPainter& painter, const std::vector<Primitive>& drawing, const DrawingPlace& place) {
  painter.save();
  painter.setClipRect(place.area, Qt::IntersectClip);
  if (std::none_of(drawing.begin(), drawing.end(), Inverts)) {
    PaintAll(painter, drawing, place);
  } else {
    // Inverting looks at the bits of what is below, so it goes into an image of plain pixels.
    const double ratio = painter.device()->devicePixelRatioF();
    QImage image((place.area.size() * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(place.background);
    QPainter below(&image);
    PaintAll(below, drawing, {QRectF(QPointF(), place.area.size()), place.pixelsPerTwip, place.background});
    below.end();
    painter.drawImage(place.area.topLeft(), image);
  }
  painter.restore();
}

}  // namespace veldrin
