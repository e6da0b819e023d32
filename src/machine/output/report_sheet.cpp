#include "machine/output/report_sheet.h"

#include <algorithm>

namespace veldrin {

namespace {

// Twips. The remark's lines end by 11400. The chart takes a third of the sheet in both directions: on a wider
// one than this it runs into the text beside it, on a lower one it is squat and the remark has hardly a line.
constexpr double kLeastWidth = 11400;
constexpr double kMostWidth = 12600;
constexpr double kLeastHeight = 14250;

}  // namespace

/// Kept: on large upright paper the report stands in its own size, from the left top corner on.
Sheet SheetFor(const QSizeF& printable) {
  const bool upright = printable.height() >= printable.width();
  if (upright && printable.width() >= kLeastWidth && printable.height() >= kLeastHeight) {
    return {.size = printable};
  }
  const double factor = std::min(printable.width() / kLeastWidth, printable.height() / kLeastHeight);
  const QSizeF whole = printable / factor;
  return {QSizeF(std::min(whole.width(), kMostWidth), whole.height()), factor};
}

}  // namespace veldrin
