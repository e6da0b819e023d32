// How a refresh moves `DataChanged`, and with it the title's mark and Restore.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Moves `DataChanged` on. A loader sets "0" and runs one refresh, which leaves "1"; the next refresh is the
/// user's. A plan stepped back to its loaded speeds becomes clean again by itself. A plan of the search is
/// changed at once. The flag stays for a scroll bar, for a new baseline and while the working file is stale.
/// Raises nothing.
void MoveDirtyFlag(Program& program);

}  // namespace veldrin
