// The chart beside the panel: whether it shows the plan or the requests, its legend, and the pointer on it,
// on the printer beside it and on the combination panel over it.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Draws the chart anew after another window changed its looks: the requests while they are being entered,
/// else the plan. Without speeds to draw there is nothing; a chart that cannot be drawn to its end stays
/// unfinished. Raises nothing.
void RedrawChart(Program& program);

/// Legend and chart as the mode asks for them, where another window has left them otherwise. Raises nothing.
void ShowChartOfMode(Program& program);

/// RefreshDisplay for a change of the plan or its conditions. It draws the plan; while requests are being
/// entered, their chart is drawn again over it. Raises what RefreshDisplay raises.
void RefreshPlan(Program& program);

/// Binds the mouse events of `Picture21`, `Picture28` and `Picture9`.
void AttachGearPanelChart(Program& program);

}  // namespace veldrin
