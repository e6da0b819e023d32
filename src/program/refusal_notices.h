// Why a list or plan was refused, with the line, by the strict reading that the console's check is made of.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Fills the hook that is told of refused files.
void AttachRefusalNotices(Program& program);

}  // namespace veldrin
