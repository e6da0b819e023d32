#include "desktop/fitted_text.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr double kSmallestShare = 0.72;
constexpr double kWrapHeight = 2.2;  // of a room for two lines, in sizes of the font
constexpr double kAnyHeight = 1e6;

/// Whether a text of this font has its place; `flags` say whether it wraps.
bool Fits(const QFont& font, const QSizeF& room, int flags, const QString& text) {
  const QFontMetricsF metrics(font);
  const QRectF bounds = metrics.boundingRect(QRectF(0, 0, room.width(), kAnyHeight), flags, text);
  // The room of a single line is told by what stands out of it, not by the leading of its font.
  const double height = bounds.height() > metrics.height() * 1.5 ? bounds.height() : metrics.capHeight();
  return bounds.width() <= room.width() + 0.5 && height <= room.height() + 0.5;
}

}  // namespace

void DrawFitted(QPainter& painter, const QRectF& room, const QString& text, const QFont& font,
                Qt::Alignment align) {
  const bool wraps = room.height() >= font.pixelSize() * kWrapHeight;
  const int across = static_cast<int>(align & Qt::AlignHorizontal_Mask);
  const int flags = across | (wraps ? Qt::TextWordWrap : Qt::TextSingleLine);
  QFont fitting = font;
  const int smallest = static_cast<int>(std::ceil(font.pixelSize() * kSmallestShare));
  while (fitting.pixelSize() > smallest && !Fits(fitting, room.size(), flags, text)) {
    fitting.setPixelSize(fitting.pixelSize() - 1);
  }
  painter.setFont(fitting);
  const QFontMetricsF metrics(fitting, painter.device());
  if (wraps) {
    const QRectF bounds = metrics.boundingRect(QRectF(0, 0, room.width(), kAnyHeight), flags, text);
    const double top = room.top() + std::max(0.0, (room.height() - bounds.height()) / 2);
    painter.drawText(QRectF(room.left(), top, room.width(), room.height()), flags, text);
    return;
  }
  QString shown = text;
  if (metrics.horizontalAdvance(text) > room.width() + 1) {
    shown = metrics.elidedText(text, Qt::ElideRight, room.width() + 1);
  }
  // Beyond the room's height, so that a tight row does not cut what hangs below the line.
  const double spare = std::max(0.0, (metrics.height() - room.height()) / 2);
  painter.drawText(room.adjusted(0, -spare, 0, spare), flags | Qt::AlignVCenter | Qt::TextDontClip, shown);
}

QString WithoutMarks(const QString& caption) {
  QString text;
  for (int i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    text += caption[i];
  }
  return text;
}

}  // namespace veldrin
