// Speeds as the columns show them: by format, then padded so that the decimal point stands in a fixed place.
#pragma once

#include "model/workspace.h"
#include "view/controls.h"
#include "workspace/program.h"

namespace veldrin {

inline constexpr int kSpeedColumn = 4;
inline constexpr int kStepColumn = 3;

/// Pads a formatted number so that its point stands at position `column` of the label, and gives a number
/// that ends in the point its zero. A caption longer than `column` with its point elsewhere stays.
/// Kept: the rule knows nothing of digits, so "1.5" becomes " 1.50" and a step ".3" becomes " .30".
void AlignCaption(int column, Label& label);

/// A speed in km/h by "###.#", aligned.
void ShowSpeed(const Workspace& workspace, Label& label, float speed);

/// A step between two gears in km/h by "##.#", aligned.
void ShowStep(const Workspace& workspace, Label& label, float step);

/// The baseline's columns, which a refresh does not write: `Label2` of a gear, and from 2nd gear up
/// `SpeedStepBaseline` and `Label39` of the step to it. Raises fault 6 for a step beyond 32 bits.
void ShowBaseline(Program& program, int gear);

}  // namespace veldrin
