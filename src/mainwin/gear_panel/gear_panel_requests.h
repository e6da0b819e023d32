// Entry of requests: the speeds wanted in the gears, the revolutions from which they may follow, the modes
// and tolerances of the gears, and which gear is the main one.
//
// Under "OR" the boxes are written from the baseline and stay silent.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// The baseline speeds, rounded half to even, become the requests and go to the boxes, with their steps.
/// Raises nothing.
void CopyBaselineToRequests(Program& program);

/// The requests as they stand go to the boxes, with their steps. Raises nothing.
void FillRequestBoxes(Program& program);

/// Binds `Text1`, `Command1`, `Option1`, `Spin1`, `Spin3`, `Command10`, the up arrow of `Command6`,
/// `SpinButton1`, `SpinButton2` and `Label34`.
void AttachGearPanelRequests(Program& program);

}  // namespace veldrin
