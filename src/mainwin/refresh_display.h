// The refresh that every edit of a plan ends in.
#pragma once

#include "workspace/captions.h"
#include "workspace/program.h"

namespace veldrin {

/// Computes speeds, steps, revolutions after the change and deviations of the plan, writes the result
/// columns, redraws the chart and advances the dirty flag. Without a machine only the flag is looked at.
/// Raises fault 11 (or 6) where a speed or `ShiftNe` of 0 is a divisor, 9 for rows outside the tables.
void RefreshDisplay(Program& program);

}  // namespace veldrin
