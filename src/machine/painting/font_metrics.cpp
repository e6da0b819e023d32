#include "machine/painting/font_metrics.h"

#include "machine/painting/fonts.h"

#include <QFontMetricsF>

namespace veldrin {

namespace {

constexpr double kFine = 16;
constexpr double kTwipsPerFinePixel = kTwipsPerInch / (kPixelsPerInch * kFine);

}  // namespace

TextSize FontMetrics::Measure(const Font& font, const std::string& text) const {
  const QFontMetricsF metrics(FontFor(font, kPixelsPerInch * kFine));
  const QString line = QString::fromStdString(text);
  return {metrics.horizontalAdvance(line) * kTwipsPerFinePixel, metrics.height() * kTwipsPerFinePixel};
}

}  // namespace veldrin
