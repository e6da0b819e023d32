#include "desktop/windows/zoom.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

// The main window at its first size, in pixels at 100 percent, with a title bar of the desktop's.
constexpr double kMainWidth = 9720.0 / kTwipsPerPixel;
constexpr double kMainHeight = 7400.0 / kTwipsPerPixel + 10;
constexpr double kShareOfScreen = 0.9;

}  // namespace

void Zoom::Set(double factor) {
  const double held = std::clamp(factor, kLeast, kMost);
  if (held == factor_) return;
  factor_ = held;
  if (changed) changed();
}

double FittingZoom(double screenWidth, double screenHeight) {
  const double room = std::min(screenWidth / kMainWidth, screenHeight / kMainHeight) * kShareOfScreen;
  const double steps = std::floor(room / Zoom::kStep) * Zoom::kStep;
  return std::clamp(steps, Zoom::kLeast, Zoom::kMost);
}

}  // namespace veldrin
