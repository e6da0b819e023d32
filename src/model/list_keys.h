// The key lines at the end of a machine list: running conditions that hold for this machine alone.
#pragma once

#include "model/workspace.h"
#include "runtime/text_file.h"

namespace veldrin {

/// Takes the lines "KEY=value" to the end of the file. Lines without "=", unknown keys, values that are no
/// numbers and those outside their ranges leave the condition as it was; a later line overrides an earlier
/// one of its key. Raises nothing.
void ReadListKeys(TextReader& reader, Workspace& workspace);

/// Each condition that still stands as a key has set it goes back to what it was before the key; one that the
/// user or a plan has changed since stays. Raises nothing.
void ReleaseListKeys(Workspace& workspace);

}  // namespace veldrin
