// Sizes of texts in the fonts of this machine.
#pragma once

#include "platform/canvas.h"

namespace veldrin {

/// Measures with the fonts that the painter paints with, at a fine resolution, so that sizes do not hang on
/// the zoom.
struct FontMetrics : TextMetrics {
  TextSize Measure(const Font& font, const std::string& text) const override;
};

}  // namespace veldrin
