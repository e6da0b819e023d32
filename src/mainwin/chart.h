// The chart of speed against revolutions: every gear a ray from the origin, the shift pattern a saw-tooth
// that climbs each ray up to the shift revolutions, drops to those after the change, and climbs the next.
//
// On the surface x is revolutions from 0 to `MaxNe`, y is km/h from 0 at the bottom to `MaxSpeed` at the top.
#pragma once

#include "calc/chart_geometry.h"
#include "view/forms/chart_axes.h"
#include "workspace/program.h"

namespace veldrin {

/// Places the grid and the numerals by the scales, lays the scale over `Picture21` and sets the ends of the
/// scroll bars. To be called after any change of `MaxNe` or `MaxSpeed`. Raises fault 11 when one is 0.
void ChartScale(Program& program);

/// Draws the plan from `SpeedNow`, with the baseline's rays. Does nothing under "INIT". Raises fault 11 (or
/// 6) for a speed of 0 from 2nd gear up, or a divisor of 0 in a ray.
void ChartPlan(Program& program);

/// Draws the requests from `SpeedRequest`, with the baseline's rays. Raises as ChartPlan does.
void ChartRequest(Program& program);

/// The saw-tooth as one connected line with the surface's pen: up the first ray from the origin, for every
/// further gear the drop and the climb, and on along top gear to the edge of the scale. Points are asked for
/// one by one while it is drawn, each by `run`. Raises fault 11 for a `shiftNe` of 0.
void DrawSawTooth(Surface& surface, const SawTooth& tooth, Colour colour, const PointRunner& run = RunStep);

/// A ray from the origin: `speed` at `revolutions`, drawn to the edge of the scale. Raises fault 11 for
/// revolutions of 0 (6 when the speed is 0 too).
void DrawRay(Surface& surface, double maxNe, double speed, double revolutions, Colour colour);

/// A vertical line over the whole scale.
void DrawMarkLine(Surface& surface, double revolutions, double maxSpeed, int style, Colour colour);

/// Moves the ticks along their axes.
template <class Form>
void PlaceTicks(Form& form, float thousandNe, float twentyKmh) {
  for (int i = 0; i <= kLastTickAcross; ++i) {
    form.Line4[i].X1 = TickAcross(i, thousandNe);
    form.Line4[i].X2 = TickAcross(i, thousandNe);
  }
  for (int i = 0; i <= kLastTickUp; ++i) {
    form.Line3[i].Y1 = TickUp(i, twentyKmh);
    form.Line3[i].Y2 = TickUp(i, twentyKmh);
  }
}

/// Moves the numerals that follow the scales along their axes.
template <class Form>
void PlaceNumerals(Form& form, float thousandNe, float twentyKmh) {
  for (int i = 0; i <= kLastNumeralAcross; ++i) form.Label22[i].Left = NumeralLeft(i, thousandNe);
  form.Label18.Top = NumeralTop(15, twentyKmh);
  form.Label19.Top = NumeralTop(10, twentyKmh);
  form.Label20.Top = NumeralTop(5, twentyKmh);
}

}  // namespace veldrin
