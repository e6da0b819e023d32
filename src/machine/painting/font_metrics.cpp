#include "machine/painting/font_metrics.h"

#include "machine/painting/fonts.h"

#include <QFontMetricsF>

namespace veldrin {

namespace {

constexpr double kFine = 16;
constexpr double kTwipsPerFinePixel = kTwipsPerInch / (kPixelsPerInch * kFine);

}  // namespace

TextSize FontMetrics::Measure(const Font& font, const std::string& text) const {
  const QFont found = FontFor(font, kPixelsPerInch * kFine);
  const double width = QFontMetricsF(found).horizontalAdvance(QString::fromStdString(text));
  return {width * kTwipsPerFinePixel, LineHeightOf(found) * kTwipsPerFinePixel};
}

}  // namespace veldrin
