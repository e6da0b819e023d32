// Why a control is out of use.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Why the user cannot use the control, or what is around it, now: one short sentence. Empty where he can,
/// and where there is no one reason. Raises nothing.
BothLanguages Reason(const Program& program, const Control& control);

}  // namespace veldrin
