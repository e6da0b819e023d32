// The saw-tooth chart of plans on a drawing surface, as the window draws it.
#pragma once

#include "plan/sheet/plan_sheet.h"
#include "platform/canvas.h"

#include <vector>

namespace veldrin {

/// The chart's scale in rev/min and km/h, wide enough for all of the sheets. There is at least one.
Scale ChartScaleOf(const std::vector<PlanSheet>& sheets);

/// The colour of a plan's saw-tooth, by its place: white for the first. They begin again behind the last.
inline constexpr std::size_t kToothColours = 8;
Colour ToothColour(std::size_t place);

/// Draws one plan as the window does, its stored speeds as dotted rays; several laid over each other, the
/// rays of the first solid, those of the others dotted, each saw-tooth in its own colour. Sets the surface's
/// scale. Raises fault 11 where a speed of 0 or revolutions of 0 divide.
void DrawPlans(Surface& surface, const std::vector<PlanSheet>& sheets);

}  // namespace veldrin
