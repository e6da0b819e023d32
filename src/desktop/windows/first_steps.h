// What a new user can do, painted on the bare main window while there is no plan. It is no control: nothing
// hears a click on it.
#pragma once

#include "workspace/program.h"

#include <QPainter>

namespace veldrin {

/// Whether the main window has a machine and no plan, so that its left half is empty.
bool AwaitsFirstPlan(const Program& program);

/// Three lines in the left half, `zoom` times as large as the program's pixels.
void PaintFirstSteps(QPainter& painter, double zoom, bool inJapanese);

}  // namespace veldrin
