#include "machine/painting/icons.h"

#include "machine/painting/figures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <vector>

namespace veldrin {

namespace {

constexpr double kSide = 64;
constexpr int kLargest = 256;

constexpr QColor kBlue(0, 0, 128);
constexpr QColor kSprocket(120, 140, 220);
constexpr QColor kPaper(250, 250, 252);
constexpr QColor kFold(200, 206, 220);

/// An area, or where `width` is more than 0 a line, on a square of kSide.
struct Part {
  QPainterPath path;
  QColor colour;
  double width = 0;
};

Part SawTooth(const QRectF& room, const QColor& colour, double width) {
  return {SawToothFigure(room), colour, width};
}

/// A sheet with a dog's ear, framed by a line of this width.
std::vector<Part> Sheet(double width) {
  QPainterPath sheet(QPointF(10, 3));
  for (const QPointF corner : {QPointF(40, 3), QPointF(54, 17), QPointF(54, 61), QPointF(10, 61)})
    sheet.lineTo(corner);
  sheet.closeSubpath();
  QPainterPath fold(QPointF(40, 3));
  for (const QPointF corner : {QPointF(54, 17), QPointF(40, 17)}) fold.lineTo(corner);
  fold.closeSubpath();
  return {{sheet, kPaper}, {fold, kFold}, {fold, kBlue, width}, {sheet, kBlue, width}};
}

/// What a machine list consists of: rows of parts.
QPainterPath Rows() {
  QPainterPath rows;
  for (const double y : {44.0, 49.0, 54.0}) {
    for (const auto& [from, to] : {std::pair{16.0, 24.0}, {28.0, 36.0}, {40.0, 48.0}}) {
      rows.moveTo(from, y);
      rows.lineTo(to, y);
    }
  }
  return rows;
}

std::vector<Part> PartsOf(IconSubject subject, int size) {
  const double line = std::max(3.0, 110.0 / size);
  if (subject == IconSubject::Program) {
    QPainterPath plate;
    plate.addRoundedRect(QRectF(1, 1, 62, 62), 9, 9);
    return {{plate, kBlue},
            {SprocketFigure({32, 32}, 17, 27), kSprocket},
            SawTooth({10, 10, 46, 44}, Qt::white, line)};
  }
  std::vector<Part> parts = Sheet(std::max(1.5, 64.0 / size));
  if (subject == IconSubject::Plan) {
    parts.push_back({SprocketFigure({32, 38}, 17, 18), kSprocket});
    parts.push_back(SawTooth({16, 22, 36, 32}, kBlue, std::max(2.5, 90.0 / size)));
  } else {
    parts.push_back({SprocketFigure({32, 28}, 17, 13), kSprocket});
    parts.push_back({Rows(), kBlue, std::max(2.0, 64.0 / size)});
  }
  return parts;
}

void PaintPart(QPainter& painter, const Part& part) {
  if (part.width > 0) {
    painter.strokePath(part.path, QPen(part.colour, part.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  } else {
    painter.fillPath(part.path, part.colour);
  }
}

std::string Number(double value) {
  return QString::number(value, 'f', 2).toStdString();
}

std::string Point(const QPainterPath::Element& element) {
  return Number(element.x) + " " + Number(element.y);
}

/// The path in the words of SVG.
std::string PathWords(const QPainterPath& path) {
  std::string words;
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element element = path.elementAt(i);
    if (element.isMoveTo()) {
      words += "M" + Point(element);
    } else if (element.isLineTo()) {
      words += "L" + Point(element);
    } else {
      words += (element.isCurveTo() ? "C" : " ") + Point(element);
    }
  }
  return words;
}

std::string SvgOf(const Part& part) {
  const std::string path = "  <path d=\"" + PathWords(part.path) + "\" ";
  const std::string colour = part.colour.name().toStdString();
  if (part.width <= 0) return path + "fill=\"" + colour + "\" fill-rule=\"evenodd\"/>\n";
  return path + "fill=\"none\" stroke=\"" + colour + "\" stroke-width=\"" + Number(part.width) +
         "\" stroke-linecap=\"round\" stroke-linejoin=\"round\"/>\n";
}

}  // namespace

QImage IconImage(IconSubject subject, int size) {
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kSide, size / kSide);
  for (const Part& part : PartsOf(subject, size)) PaintPart(painter, part);
  return image;
}

std::string IconSvg(IconSubject subject) {
  std::string svg =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"64\" height=\"64\" viewBox=\"0 0 64 64\">\n";
  for (const Part& part : PartsOf(subject, kLargest)) svg += SvgOf(part);
  return svg + "</svg>\n";
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addPixmap(QPixmap::fromImage(IconImage(IconSubject::Program, size)));
  return icon;
}

}  // namespace veldrin
