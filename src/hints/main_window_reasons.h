// Why a control of the main window is out of use.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// The reason for what is out of use: the control that was asked about or what is around it. Empty where
/// there is no one reason. Raises nothing.
BothLanguages MainWindowReason(const Program& program, const Control& off);

}  // namespace veldrin
