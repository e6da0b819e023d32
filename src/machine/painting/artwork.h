// The pictures that the windows show by number. They are drawn here, so that they are sharp at every zoom.
#pragma once

#include <QPainter>
#include <QRectF>

#include <string>

namespace veldrin {

/// Paints picture resource `number` over `room`; an unknown number paints nothing.
void PaintImage(QPainter& painter, const QRectF& room, int number);

/// Paints what lies behind the controls of a window that has a picture for that, by the window's name; other
/// windows have none. `room` is the window at its full height.
void PaintWindowPicture(QPainter& painter, const QRectF& room, const std::string& window);

}  // namespace veldrin
