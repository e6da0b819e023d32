// The main window's layout when its size changes. The remark box, the chart panel, the two scroll bars, their
// titles and the combination panel follow; everything else keeps its place.
//
// Remark box, chart panel and combination panel follow the outer size, the scroll bars and their titles the
// inner one: that mixture makes the margins that frame and menu take. Below 9675 by 7390 twips they stop
// following. What stands on the chart panel is placed in units of 4605 by 6855 at every size.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Lays the window out and redraws the chart. Does nothing while the window is being set up and before there
/// is a plan. Raises fault 11 for a chart scale of 0, and what the charts raise.
void Form2_Resize(Program& program);

/// Binds the window's Resize.
void AttachLayout(Program& program);

}  // namespace veldrin
