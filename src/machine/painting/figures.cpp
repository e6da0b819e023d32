#include "machine/painting/figures.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace veldrin {

namespace {

/// The outline: `teeth` of them between two radii.
QPainterPath Outline(QPointF middle, int teeth, double outer, double inner) {
  QPainterPath path;
  const double pitch = 2 * std::numbers::pi / teeth;
  for (int tooth = 0; tooth < teeth; ++tooth) {
    for (const auto& [share, radius] : {std::pair{0.0, inner}, {0.28, inner}, {0.42, outer}, {0.72, outer}}) {
      const double angle = pitch * (tooth + share);
      const QPointF point = middle + QPointF(radius * std::cos(angle), radius * std::sin(angle));
      if (tooth == 0 && share == 0) {
        path.moveTo(point);
      } else {
        path.lineTo(point);
      }
    }
  }
  path.closeSubpath();
  return path;
}

}  // namespace

QPainterPath SprocketFigure(QPointF middle, int teeth, double radius) {
  QPainterPath path = Outline(middle, teeth, radius, radius * 0.86);
  path.addEllipse(middle, radius * 0.2, radius * 0.2);
  constexpr int kHoles = 5;
  for (int i = 0; i < kHoles; ++i) {
    const double angle = 2 * std::numbers::pi * i / kHoles;
    const QPointF place = middle + QPointF(std::cos(angle), std::sin(angle)) * radius * 0.53;
    path.addEllipse(place, radius * 0.16, radius * 0.16);
  }
  return path;
}

QPainterPath SawToothFigure(const QRectF& room) {
  constexpr double kSpeeds[] = {0.42, 0.55, 0.67, 0.79, 0.9, 1.0};
  const auto at = [&](double x, double y) {
    return QPointF(room.left() + x * room.width(), room.bottom() - y * room.height());
  };
  QPainterPath path(at(0, 0));
  double before = 0;
  for (const double speed : kSpeeds) {
    if (before > 0) path.lineTo(at(before / speed * 0.92, before));
    path.lineTo(at(0.92, speed));
    before = speed;
  }
  return path;
}

}  // namespace veldrin
