// Where the chart's points lie, as numbers: the scale, ticks and numerals, rays and the saw-tooth. Drawing
// them is left to those who have a surface.
#pragma once

#include "model/workspace.h"
#include "platform/canvas.h"

#include <functional>

namespace veldrin {

/// What a saw-tooth climbs and where it drops to, by gear.
struct SawTooth {
  double shiftNe;                          // rev/min
  double maxNe;                            // rev/min
  std::function<double(int gear)> speed;   // km/h of gears 1..6
  std::function<double(int gear)> dropNe;  // rev/min after changing up into gears 2..6
};

/// Walks the saw-tooth's points behind the origin: up the first ray, for every further gear the drop and the
/// climb, and on along top gear to the edge of the scale. Speeds and drops are asked for point by point, so
/// that whoever draws has drawn all before the one that fails. Raises fault 11 for a `shiftNe` of 0.
void WalkSawTooth(const SawTooth& tooth, const std::function<void(double x, double y)>& to);

/// Height in km/h of a ray through `speed` at `revolutions` where it reaches `maxNe`. Raises fault 11 for
/// revolutions of 0 (6 when the speed is 0 too).
double RayEnd(double maxNe, double speed, double revolutions);

/// Twips for 1000 rev/min on the chart's frame, as a 32-bit float. Raises fault 11 for a scale of 0.
float TwipsPerThousandNe(const Workspace& workspace);

/// Twips for 20 km/h.
float TwipsPerTwentyKmh(const Workspace& workspace);

/// The chart's scale for a surface.
Scale ChartUnits(const Workspace& workspace);

/// Where the tick of a number of thousand revolutions and that of a number of 20 km/h lie in the panel.
inline float TickAcross(int thousands, float thousandNe) {
  // Kept: the factor is part of the rule.
  return static_cast<float>((thousands * static_cast<double>(thousandNe) + 480) * 1.008);
}
inline float TickUp(int twenties, float twentyKmh) {
  return static_cast<float>(5520 - twenties * static_cast<double>(twentyKmh));
}

/// Where the numeral of 5, 10, 15 or 20 thousand revolutions begins, by its index, and the top of that of a
/// number of 20 km/h.
inline float NumeralLeft(int index, float thousandNe) {
  return thousandNe * static_cast<float>(5 * (index + 1)) + (index == 0 ? 450.0F : 400.0F);
}
inline float NumeralTop(int twenties, float twentyKmh) {
  return 5430 - twentyKmh * static_cast<float>(twenties);
}

}  // namespace veldrin
