// The chart of speed against revolutions: every gear a ray from the origin, the shift pattern a saw-tooth
// that climbs each ray up to the shift revolutions, drops to those after the change, and climbs the next.
//
// On the surface x is revolutions from 0 to `MaxNe`, y is km/h from 0 at the bottom to `MaxSpeed` at the top.
#pragma once

#include "workspace/program.h"

#include <functional>

namespace veldrin {

/// Places the grid and the numerals by the scales, lays the scale over `Picture21` and sets the ends of the
/// scroll bars. To be called after any change of `MaxNe` or `MaxSpeed`. Raises fault 11 when one is 0.
void ChartScale(Program& program);

/// Draws the plan from `SpeedNow`, with the baseline's rays. Does nothing under "INIT". Raises fault 11 (or
/// 6) for a speed of 0 from 2nd gear up, or a divisor of 0 in a ray.
void ChartPlan(Program& program);

/// Draws the requests from `SpeedRequest`, with the baseline's rays. Raises as ChartPlan does.
void ChartRequest(Program& program);

/// What a saw-tooth climbs and where it drops to, by gear.
struct SawTooth {
  double shiftNe;                          // rev/min
  double maxNe;                            // rev/min
  std::function<double(int gear)> speed;   // km/h of gears 1..6
  std::function<double(int gear)> dropNe;  // rev/min after changing up into gears 2..6
};

/// The saw-tooth as one connected line with the surface's pen: up the first ray from the origin, for every
/// further gear the drop and the climb, and on along top gear to the edge of the scale. Points are asked for
/// one by one while it is drawn. Raises fault 11 for a `shiftNe` of 0.
void DrawSawTooth(Surface& surface, const SawTooth& tooth, Colour colour);

/// A ray from the origin: `speed` at `revolutions`, drawn to the edge of the scale. Raises fault 11 for
/// revolutions of 0 (6 when the speed is 0 too).
void DrawRay(Surface& surface, double maxNe, double speed, double revolutions, Colour colour);

/// A vertical line over the whole scale.
void DrawMarkLine(Surface& surface, double revolutions, double maxSpeed, int style, Colour colour);

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

/// Moves the ticks along their axes.
template <class Form>
void PlaceTicks(Form& form, float thousandNe, float twentyKmh) {
  for (int i = 0; i <= 24; ++i) {
    form.Line4[i].X1 = TickAcross(i, thousandNe);
    form.Line4[i].X2 = TickAcross(i, thousandNe);
  }
  for (int i = 0; i <= 18; ++i) {
    form.Line3[i].Y1 = TickUp(i, twentyKmh);
    form.Line3[i].Y2 = TickUp(i, twentyKmh);
  }
}

/// Moves the numerals that follow the scales along their axes.
template <class Form>
void PlaceNumerals(Form& form, float thousandNe, float twentyKmh) {
  for (int i = 0; i <= 3; ++i) form.Label22[i].Left = NumeralLeft(i, thousandNe);
  form.Label18.Top = NumeralTop(15, twentyKmh);
  form.Label19.Top = NumeralTop(10, twentyKmh);
  form.Label20.Top = NumeralTop(5, twentyKmh);
}

}  // namespace veldrin
