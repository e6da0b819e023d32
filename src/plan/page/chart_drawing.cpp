#include "plan/page/chart_drawing.h"

#include "calc/chart_geometry.h"

#include <algorithm>

namespace veldrin {

namespace {

double SpeedOf(const PlanSheet& sheet, int gear) {
  return sheet.gears[static_cast<std::size_t>(gear - 1)].speed;
}

template <class Speeds>
void DrawRays(Surface& surface, double maxNe, double revolutions, const Speeds& speed) {
  for (int gear = 1; gear <= kGears; ++gear) {
    surface.Line(0, 0, maxNe, RayEnd(maxNe, speed(gear), revolutions), DesignedGearColour(gear));
  }
}

void DrawMark(Surface& surface, double revolutions, double maxSpeed, int style, Colour colour) {
  surface.drawStyle = style;
  surface.Line(revolutions, 0, revolutions, maxSpeed, colour);
}

void DrawTooth(Surface& surface, const PlanSheet& sheet, double maxNe, Colour colour) {
  const auto speed = [&](int gear) { return SpeedOf(sheet, gear); };
  WalkSawTooth(SawToothOf(sheet.shiftNe, maxNe, speed),
               [&](double x1, double y1, double x2, double y2) { surface.Line(x1, y1, x2, y2, colour); });
}

}  // namespace

Scale ChartScaleOf(const std::vector<PlanSheet>& sheets) {
  double maxNe = 0;
  double maxSpeed = 0;
  for (const PlanSheet& sheet : sheets) {
    maxNe = std::max<double>(maxNe, sheet.maxNe);
    maxSpeed = std::max<double>(maxSpeed, sheet.maxSpeed);
  }
  return {0, maxSpeed, maxNe, -maxSpeed};
}

Colour ToothColour(std::size_t place) {
  constexpr int kNumbers[kToothColours] = {15, 14, 11, 13, 10, 12, 6, 3};  // in the palette
  return PaletteColour(kNumbers[place % kToothColours]);
}

void DrawPlans(Surface& surface, const std::vector<PlanSheet>& sheets) {
  const Scale scale = ChartScaleOf(sheets);
  surface.SetScale(scale);
  surface.Clear();
  const PlanSheet& first = sheets.front();
  surface.drawStyle = kPenSolid;
  DrawRays(surface, scale.width, first.shiftNe, [&](int gear) { return SpeedOf(first, gear); });
  surface.drawStyle = kPenDotted;
  if (sheets.size() == 1 && first.hasStored) {
    DrawRays(surface, scale.width, first.referenceNe, [&](int gear) {
      return static_cast<double>(first.gears[static_cast<std::size_t>(gear - 1)].stored);
    });
  }
  for (std::size_t k = 1; k < sheets.size(); ++k) {
    DrawRays(surface, scale.width, sheets[k].shiftNe, [&](int gear) { return SpeedOf(sheets[k], gear); });
  }
  for (std::size_t k = 0; k < sheets.size(); ++k) {
    const bool isDrawn = k > 0 && sheets[k].shiftNe == first.shiftNe;
    if (!isDrawn) DrawMark(surface, sheets[k].shiftNe, scale.top, kPenDashDot, ToothColour(k));
  }
  DrawMark(surface, first.checkNe, scale.top, kPenDashDotDot, kLightGrey);
  surface.drawStyle = kPenSolid;
  for (std::size_t k = 0; k < sheets.size(); ++k) DrawTooth(surface, sheets[k], scale.width, ToothColour(k));
}

}  // namespace veldrin
