// A click on an entry of the history. What the history holds, and how it changes, is working_files.h's.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Opens history entry `index`, or raises the decision panel when the plan has unsaved changes; with a
/// forbidden 3rd and 4th pair on show the changes do not count. Index 0, the separator, does no more than
/// that. Raises fault 340 for an entry that is not there, and what the chooser's OK raises.
void ReopenFromHistory(Program& program, int index);

}  // namespace veldrin
