#include "machine/painting/fonts.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr int kPointsPerInch = 72;

/// The families to look for, the wanted one first. A Japanese one stands in every list: without it the
/// system may take Chinese forms of the characters.
QStringList Families(const std::string& name) {
  const QString wanted = QString::fromStdString(name);
  const QStringList proportional = {"Noto Sans CJK JP", "IPAPGothic", "VL PGothic", "TakaoPGothic"};
  if (wanted == QStringLiteral("ＭＳ ゴシック")) {
    return QStringList{wanted,      "MS Gothic", "Noto Sans Mono CJK JP",
                       "IPAGothic", "VL Gothic", "TakaoGothic"} +
           proportional;
  }
  if (wanted == QStringLiteral("ＭＳ Ｐゴシック")) return QStringList{wanted, "MS PGothic"} + proportional;
  return QStringList{wanted, "Liberation Sans", "Arimo"} + proportional;
}

}  // namespace

QFont FontFor(const Font& font, double pixelsPerInch) {
  QFont found;
  found.setFamilies(Families(font.name));
  const double pixels = static_cast<double>(font.size) * pixelsPerInch / kPointsPerInch;
  found.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
  found.setBold(font.bold);
  found.setItalic(font.italic);
  return found;
}

QFont FontFor(const PlacedControl& control, double zoom) {
  const Font font{control.FontName, control.FontSize, control.FontBold, control.FontItalic};
  return FontFor(font, kPixelsPerInch * zoom);
}

QColor ToQColor(Colour colour) {
  return {colour.Red(), colour.Green(), colour.Blue()};
}

Colour ToColour(const QColor& colour) {
  return Rgb(colour.red(), colour.green(), colour.blue());
}

}  // namespace veldrin
