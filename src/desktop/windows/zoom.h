// How large the program is shown: 15 twips are one logical pixel times the zoom. High-density screens come on
// top of that, by Qt.
#pragma once

#include "platform/screen.h"

#include <functional>

namespace veldrin {

class Zoom {
 public:
  static constexpr double kLeast = 0.5;
  static constexpr double kMost = 3;
  static constexpr double kStep = 0.25;

  double Factor() const { return factor_; }
  /// Takes a factor, held within the ends; tells `changed` when it is another one.
  void Set(double factor);
  void Enlarge() { Set(factor_ + kStep); }
  void Reduce() { Set(factor_ - kStep); }

  /// Logical pixels of a length in twips, and back.
  double Pixels(double twips) const { return twips / kTwipsPerPixel * factor_; }
  double Twips(double pixels) const { return pixels / factor_ * kTwipsPerPixel; }

  std::function<void()> changed;

 private:
  double factor_ = 1;
};

/// The largest step at which the main window leaves some room on a screen of this many logical pixels; where
/// none does, the smallest.
double FittingZoom(double screenWidth, double screenHeight);

}  // namespace veldrin
