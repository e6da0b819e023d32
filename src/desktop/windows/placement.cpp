#include "desktop/windows/placement.h"

#include "view/window.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

/// Pixels of the units in which the children of a control are placed.
struct Units {
  double across;
  double down;
  double border;
};

Units UnitsInside(const Control& parent, const Zoom& zoom) {
  const double border = BorderPixels(parent, zoom);
  const Units twips{zoom.Pixels(1), zoom.Pixels(1), border};
  if (parent.kind != ControlKind::Picture) return twips;
  const Surface& surface = static_cast<const Picture&>(parent).surface;
  const Scale scale = surface.UserScale();
  const bool isSize = scale.width == surface.PhysicalWidth() && scale.height == surface.PhysicalHeight();
  const bool serves = scale.left == 0 && scale.top == 0 && scale.width > 0 && scale.height > 0;
  if (isSize || !serves) return twips;
  const QRectF place = PlaceInParent(parent, zoom);
  return {(place.width() - 2 * border) / scale.width, (place.height() - 2 * border) / scale.height, border};
}

constexpr int kGrip = 80;  // pixels of a title bar that are enough to take it

int DistanceBetween(const QRect& screen, const QPoint& point) {
  const QPoint nearest(std::clamp(point.x(), screen.left(), screen.right()),
                       std::clamp(point.y(), screen.top(), screen.bottom()));
  return (nearest - point).manhattanLength();
}

}  // namespace

double BorderPixels(const Control& control, const Zoom& zoom) {
  return control.look.border ? std::max(1.0, std::round(zoom.Factor())) : 0;
}

QRectF PlaceInParent(const Control& control, const Zoom& zoom) {
  const Units units = UnitsInside(*control.parent, zoom);
  const auto x = [&](float value) { return units.border + static_cast<double>(value) * units.across; };
  const auto y = [&](float value) { return units.border + static_cast<double>(value) * units.down; };
  if (control.kind == ControlKind::Line) {
    const auto& line = static_cast<const Line&>(control);
    return QRectF(QPointF(x(line.X1), y(line.Y1)), QPointF(x(line.X2), y(line.Y2))).normalized();
  }
  const auto& placed = static_cast<const PlacedControl&>(control);
  QRectF place(x(placed.Left), y(placed.Top), static_cast<double>(placed.Width) * units.across,
               static_cast<double>(placed.Height) * units.down);
  if (control.kind == ControlKind::Label && control.parent->kind == ControlKind::Picture) {
    const QRectF panel = PlaceInParent(*control.parent, zoom);
    if (place.left() < panel.width() && place.right() > panel.width()) {
      place.moveRight(std::max(panel.width(), place.width()));
    }
    if (place.top() < 0 && place.bottom() > 0) {
      place.center().y() >= 0 ? place.moveTop(0) : place.moveBottom(0);
    }
  }
  return place;
}

QRect PixelsInParent(const Control& control, const Zoom& zoom) {
  const QRectF place = PlaceInParent(control, zoom);
  const QPoint corner(qRound(place.left()), qRound(place.top()));
  const QPoint end(qRound(place.right()), qRound(place.bottom()));
  QSize size(std::max(0, end.x() - corner.x()), std::max(0, end.y() - corner.y()));
  if (control.kind == ControlKind::Line) {
    const int width = LineWidth(zoom);
    if (size.width() == 0) size.setWidth(width);
    if (size.height() == 0) size.setHeight(width);
  }
  return {corner, size};
}

int LineWidth(const Zoom& zoom) {
  return std::max(1, qRound(zoom.Factor()));
}

QSize ClientPixels(const Window& window, const Zoom& zoom) {
  return {std::max(1, qRound(zoom.Pixels(window.InnerWidth()))),
          std::max(1, qRound(zoom.Pixels(window.InnerHeight())))};
}

QPoint CornerInReach(const QRect& frame, int titleHeight, const QList<QRect>& screens) {
  const QRect title(frame.topLeft(), QSize(frame.width(), titleHeight));
  const auto serves = [&](const QRect& screen) {
    const QRect seen = screen & title;
    return seen.height() == titleHeight && seen.width() >= std::min(kGrip, frame.width());
  };
  if (screens.empty() || std::any_of(screens.begin(), screens.end(), serves)) return frame.topLeft();
  const QRect screen = *std::min_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
    return DistanceBetween(a, title.center()) < DistanceBetween(b, title.center());
  });
  const QPoint farthest(screen.right() + 1 - frame.width(), screen.bottom() + 1 - frame.height());
  return {std::max(screen.left(), std::min(frame.left(), farthest.x())),
          std::max(screen.top(), std::min(frame.top(), farthest.y()))};
}

}  // namespace veldrin
