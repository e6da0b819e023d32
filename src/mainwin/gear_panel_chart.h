// The pointer on the chart, on the printer beside it and on the combination panel over it.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Draws the chart anew after another window changed its looks: the requests while they are being entered,
/// else the plan. Does nothing before there is a plan to draw. Raises what the charts raise.
void RedrawChart(Program& program);

/// Binds the mouse events of `Picture21`, `Picture28` and `Picture9`.
void AttachGearPanelChart(Program& program);

}  // namespace veldrin
