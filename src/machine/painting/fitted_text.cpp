#include "machine/painting/fitted_text.h"

#include "machine/painting/fonts.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr double kSmallestShare = 0.72;
constexpr double kLowestShare = 0.45;   // of a line that would be cut above or below
constexpr double kWrapHeight = 2.2;     // of a room for two lines, in sizes of the font
constexpr double kClosestLines = 1.15;  // from line to line, in sizes of the font

/// Breaks the text into lines of the width; returns how many.
int Break(QTextLayout& layout, double width, Qt::Alignment across) {
  QTextOption option(across);
  option.setWrapMode(QTextOption::WordWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
  }
  layout.endLayout();
  return layout.lineCount();
}

/// How far apart the lines stand: as the font has it, or closer where only that gives them room. Fonts with
/// Japanese letters leave half a line between two.
double Pitch(const QTextLayout& layout, double room) {
  const double natural = layout.lineAt(0).height();
  const double closest = layout.font().pixelSize() * kClosestLines;
  return std::max(closest, std::min(natural, room / layout.lineCount()));
}

bool FitsWrapped(const QTextLayout& layout, const QSizeF& room) {
  for (int i = 0; i < layout.lineCount(); ++i) {
    if (layout.lineAt(i).naturalTextWidth() > room.width() + 0.5) return false;
  }
  return Pitch(layout, room.height()) * layout.lineCount() <= room.height() + 0.5;
}

/// Where the letters of a font stand whose line lies in the middle of a height. Told by the font that was
/// asked for: characters that come from another one share the line.
double LineWithin(double height, const QFont& font, QPaintDevice* device) {
  return (height - LineHeightOf(font, device)) / 2 + AscentOf(font, device);
}

bool DrawWrapped(QPainter& painter, const QRectF& room, QString text, QFont font, int smallest,
                 Qt::Alignment across) {
  text.replace('\n', QChar::LineSeparator);
  for (;; font.setPixelSize(font.pixelSize() - 1)) {
    QTextLayout layout(text, font, painter.device());
    if (Break(layout, room.width(), across) == 0) return true;
    if (font.pixelSize() > smallest && !FitsWrapped(layout, room.size())) continue;
    const double pitch = Pitch(layout, room.height());
    const double top = std::max(0.0, (room.height() - pitch * layout.lineCount()) / 2);
    const double first = top + LineWithin(pitch, font, painter.device());
    for (int i = 0; i < layout.lineCount(); ++i) {
      QTextLine line = layout.lineAt(i);
      line.setPosition(QPointF(0, first + pitch * i - line.ascent()));
    }
    layout.draw(&painter, room.topLeft());
    return FitsWrapped(layout, room.size());
  }
}

/// A tight room is told by what the text itself has above and below the line, not by what its font could
/// have.
bool FitsHeight(const QFont& font, const QSizeF& room, const QString& text) {
  return QFontMetricsF(font).tightBoundingRect(text).height() <= room.height() + 0.5;
}

bool FitsOneLine(const QFont& font, const QSizeF& room, const QString& text) {
  return QFontMetricsF(font).horizontalAdvance(text) <= room.width() + 0.5 && FitsHeight(font, room, text);
}

/// The font made smaller as the room wants it: a width only so far, as a text can be cut short at its end, a
/// height further, as a line that is cut along its length cannot be read.
QFont FontForOneLine(QFont font, const QSizeF& room, const QString& text, int smallest) {
  const int flattest = static_cast<int>(std::ceil(font.pixelSize() * kLowestShare));
  while (font.pixelSize() > smallest && !FitsOneLine(font, room, text))
    font.setPixelSize(font.pixelSize() - 1);
  while (font.pixelSize() > flattest && !FitsHeight(font, room, text))
    font.setPixelSize(font.pixelSize() - 1);
  return font;
}

bool IsPath(const QString& text) {
  return text.contains('/') || text.contains('\\');
}

bool DrawOneLine(QPainter& painter, const QRectF& room, QString text, const QFont& asked, int smallest,
                 Qt::Alignment across) {
  text.replace('\n', ' ');
  const QFont font = FontForOneLine(asked, room.size(), text, smallest);
  painter.setFont(font);
  const QFontMetricsF metrics(font, painter.device());
  QString shown = text;
  if (metrics.horizontalAdvance(text) > room.width() + 1) {
    shown = metrics.elidedText(text, IsPath(text) ? Qt::ElideMiddle : Qt::ElideRight, room.width() + 1);
  }
  // The font's lines stand in the middle, so that texts beside each other share theirs; in a tight room the
  // text moves as far as keeps it whole.
  const QRectF ink = metrics.tightBoundingRect(shown);
  const double line = room.top() + LineWithin(room.height(), font, painter.device());
  const double lowest = room.bottom() - ink.bottom();
  const double highest = room.top() - ink.top();
  const double left = room.width() - metrics.horizontalAdvance(shown);  // room that is left over
  const double before = across == Qt::AlignRight ? left : across == Qt::AlignHCenter ? left / 2 : 0;
  painter.drawText(QPointF(room.left() + before, std::max(highest, std::min(line, lowest))), shown);
  return shown == text;
}

}  // namespace

bool DrawFitted(QPainter& painter, const QRectF& room, const QString& text, const QFont& font,
                Qt::Alignment align) {
  const Qt::Alignment across = align & Qt::AlignHorizontal_Mask;
  const int smallest = static_cast<int>(std::ceil(font.pixelSize() * kSmallestShare));
  const bool wraps = room.height() >= font.pixelSize() * kWrapHeight;
  return wraps ? DrawWrapped(painter, room, text, font, smallest, across)
               : DrawOneLine(painter, room, text, font, smallest, across);
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
