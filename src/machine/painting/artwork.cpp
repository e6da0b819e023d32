#include "machine/painting/artwork.h"

#include "machine/painting/figures.h"
#include "machine/painting/fonts.h"
#include "view/forms/form10.h"

#include <utility>

namespace veldrin {

namespace {

constexpr double kButtonSize = 13;

constexpr QColor kInk(24, 32, 72);
constexpr QColor kStrip(206, 214, 230);
constexpr QColor kPanel(232, 236, 244);
constexpr QColor kNight(10, 14, 60);
constexpr QColor kSteel(190, 198, 214);
constexpr QColor kGlow(255, 205, 60);

void PaintSprocket(QPainter& painter, QPointF middle, int teeth, double radius, const QColor& colour) {
  painter.fillPath(SprocketFigure(middle, teeth, radius), colour);
}

void PaintSawTooth(QPainter& painter, const QRectF& room, const QColor& colour, double width) {
  painter.strokePath(SawToothFigure(room), QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

bool IsClose(int number) {
  return number == kCloseImage || number == kClosePressedImage;
}

bool IsRoll(int number) {
  return number == kRollImage || number == kRollPressedImage;
}

void PaintStripButton(QPainter& painter, int number) {
  const bool pressed = number == kClosePressedImage || number == kRollPressedImage;
  const double shift = pressed ? 0.5 : 0;
  painter.setPen(QPen(kInk, 1));
  painter.setBrush(pressed ? kStrip.darker(125) : kPanel);
  painter.drawRect(QRectF(0.5, 0.5, kButtonSize - 1, kButtonSize - 1));
  painter.setPen(QPen(kInk, 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.translate(shift, shift);
  if (IsClose(number)) {
    painter.drawLine(QPointF(4, 4), QPointF(9, 9));
    painter.drawLine(QPointF(9, 4), QPointF(4, 9));
  } else {
    painter.drawLine(QPointF(3.5, 4), QPointF(9.5, 4));
    painter.setBrush(kInk);
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF({QPointF(6.5, 6), QPointF(9.5, 9.5), QPointF(3.5, 9.5)}));
  }
}

/// Behind the About window, in its twips: a title strip, artwork, and two panels with the captions of the
/// figures.
void PaintAbout(QPainter& painter) {
  painter.fillRect(QRectF(0, 0, 7170, 4830), kStrip);
  painter.fillRect(QRectF(0, 330, 7170, 4500), kSteel);

  const QRectF art(0, 330, 7170, 1470);
  painter.save();
  painter.setClipRect(art);
  painter.fillRect(art, kNight);
  PaintSprocket(painter, {980, 1080}, 38, 980, QColor(38, 48, 110));
  PaintSprocket(painter, {2180, 620}, 15, 400, QColor(60, 74, 150));
  PaintSawTooth(painter, {3900, 480, 3120, 1200}, QColor(90, 120, 220), 30);
  painter.restore();
  painter.setPen(Qt::white);
  painter.setFont(FontFor({"Arial", 34, true, true}, kTwipsPerInch));
  painter.drawText(QRectF(300, 480, 6500, 850), Qt::AlignLeft | Qt::AlignVCenter, "Veldrin");
  painter.setPen(kGlow);
  painter.setFont(FontFor({"Arial", 11, false, false}, kTwipsPerInch));
  painter.drawText(QRectF(340, 1280, 6500, 330), Qt::AlignLeft | Qt::AlignVCenter, "Motorcycle gearing");

  painter.fillRect(QRectF(QPointF(150, 1905), QPointF(7020, 4080)), kPanel);
  painter.fillRect(QRectF(QPointF(150, 4185), QPointF(7020, 4680)), kPanel);
  painter.setPen(kInk);
  painter.setFont(FontFor({"Arial", 9, true, false}, kTwipsPerInch));
  constexpr std::pair<double, const char*> kCaptions[] = {
      {2010, "Version"}, {2355, "Processor"}, {2700, "Memory"},   {3045, "Swap file"},
      {3390, "Screen"},  {3735, "Free disk"}, {4305, "Home page"}};
  for (const auto& [top, caption] : kCaptions) {
    painter.drawText(QRectF(240, top, 1500, 255), Qt::AlignLeft | Qt::AlignVCenter, caption);
  }
}

}  // namespace

void PaintImage(QPainter& painter, const QRectF& room, int number) {
  if (!IsClose(number) && !IsRoll(number)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(room.topLeft());
  painter.scale(room.width() / kButtonSize, room.height() / kButtonSize);
  PaintStripButton(painter, number);
  painter.restore();
}

void PaintWindowPicture(QPainter& painter, const QRectF& room, const std::string& window) {
  if (window != "Form10") return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(room.width() / 7170, room.height() / 4830);
  PaintAbout(painter);
  painter.restore();
}

}  // namespace veldrin
