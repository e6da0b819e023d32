// What a refresh computes of the plan, gear by gear, into the workspace.
//
// The functions of a gear are called in the order in which they stand here and the gears from 1st upward:
// each uses what those before it left, and the first that faults leaves the figures behind it as they were.
#pragma once

#include "model/workspace.h"

namespace veldrin {

/// `SpeedNow` of a gear in km/h. Raises fault 9 for rows outside the tables, 11 or 6 for teeth that do not
/// divide.
void ComputeSpeed(Workspace& workspace, int gear);

/// `SpeedStepNow` from the gear below, for 2nd gear and up. Raises fault 6 for a step beyond 32 bits.
void ComputeStep(Workspace& workspace, int gear);

/// `NeDeviation` from the baseline in rev/min, 0 where it lies within the dead band. False for a gear without
/// a baseline: its speed becomes the baseline. Raises fault 11 or 6 for a `ShiftNe` of 0.
bool ComputeDeviation(Workspace& workspace, int gear);

/// `ShiftDropNe`, the rev/min after changing up into the gear; 1st gear's is from its own speed. Raises fault
/// 11 or 6 for a speed of 0.
void ComputeDrop(Workspace& workspace, int gear);

}  // namespace veldrin
