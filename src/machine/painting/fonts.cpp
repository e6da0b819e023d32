#include "machine/painting/fonts.h"

#include <QFontMetricsF>
#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <cmath>
#include <map>

namespace veldrin {

namespace {

constexpr int kPointsPerInch = 72;
constexpr double kCellAscent = 220.0 / 256;  // of the Japanese fonts, in heights of their cell

constexpr QStringView kGothic(u"ＭＳ ゴシック");
constexpr QStringView kProportionalGothic(u"ＭＳ Ｐゴシック");

/// Whether one of the Japanese fonts was asked for, whatever was found.
bool IsJapanese(const QFont& font) {
  const QString asked = font.families().value(0);
  return asked == kGothic || asked == kProportionalGothic;
}

/// The families to look for, the wanted one first. A Japanese one stands in every list: without it the
/// system may take Chinese forms of the characters.
QStringList FamiliesFor(const QString& wanted) {
  const QStringList proportional = {"Noto Sans CJK JP", "IPAPGothic", "VL PGothic", "TakaoPGothic"};
  if (wanted == kGothic) {
    return QStringList{wanted,      "MS Gothic", "Noto Sans Mono CJK JP",
                       "IPAGothic", "VL Gothic", "TakaoGothic"} +
           proportional;
  }
  if (wanted == kProportionalGothic) return QStringList{wanted, "MS PGothic"} + proportional;
  return QStringList{wanted, "Liberation Sans", "Arimo"} + proportional;
}

/// The same, worked out once for each name: every control asks whenever it takes its font.
const QStringList& Families(const std::string& name) {
  static std::map<std::string, QStringList> known;
  const auto [place, isNew] = known.try_emplace(name);
  if (isNew) place->second = FamiliesFor(QString::fromStdString(name));
  return place->second;
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

double AscentOf(const QFont& font, QPaintDevice* device) {
  return IsJapanese(font) ? font.pixelSize() * kCellAscent : QFontMetricsF(font, device).ascent();
}

double LineHeightOf(const QFont& font, QPaintDevice* device) {
  return IsJapanese(font) ? font.pixelSize() : QFontMetricsF(font, device).height();
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
