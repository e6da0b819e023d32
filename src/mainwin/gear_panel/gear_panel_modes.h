// The mode machine behind `Command2`: which panel stands where, and what can be used.
//
//   BASING --A--> CHANGE <--C-- SPEED <--D/E--> RPM        left button: A, B, C; right button: D, E
//                   \------B---->/    C from RPM too
//
// `f_mode`, `f_calc` and other units fire `Command2`'s mouse-up with the left button.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds `Command2`, `f_mode` and `f_calc`.
void AttachGearPanelModes(Program& program);

}  // namespace veldrin
