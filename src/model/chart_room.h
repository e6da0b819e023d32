// Room on the chart for what a file brings beyond its scales.
#pragma once

#include "model/workspace.h"

namespace veldrin {

/// Shift revolutions beyond the chart's end move `MaxNe` to 1000 rev/min above them. True when it moved.
/// Raises fault 6 for an end beyond 16 bits.
bool WidenRevolutions(Workspace& workspace);

/// A baseline of 6th gear above the chart's top raises `MaxSpeed` to the next tens but one, to the highest
/// that it may be at most. True when the top was set, also where it stood at the highest before. Raises
/// nothing.
bool RaiseTopSpeed(Workspace& workspace);

}  // namespace veldrin
