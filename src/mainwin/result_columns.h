// The result columns of the main window. Each function writes what calc/plan_figures.h has computed of a
// gear.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// `Label9`: the speed.
void ShowSpeedNow(Program& program, int gear);

/// The back colours of the two gears that a step parts, 2nd gear and up.
void ColourStep(Program& program, int gear);

/// `Label40`: the step to the gear from the one below, 2nd gear and up.
void ShowStepNow(Program& program, int gear);

/// `Label10` and `Label_Dif`: how far revolutions and speed lie from the baseline. Raises fault 6 for speeds
/// too far apart for 32 bits.
void ShowDeviation(Program& program, int gear);

/// The same for a gear whose baseline is its own speed.
void ShowNoDeviation(Program& program, int gear);

/// `Label11`: the revolutions after changing up into the gear.
void ShowDrop(Program& program, int gear);

/// Whether no gear shows a deviation. What is shown counts, rounded as it is.
bool ShowsNoDeviation(const Program& program);

}  // namespace veldrin
