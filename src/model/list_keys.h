// The key lines at the end of a machine list: running conditions that hold for this machine alone.
#pragma once

#include "model/limits.h"
#include "model/workspace.h"
#include "runtime/text_file.h"

namespace veldrin {

/// Calls `use` with each condition of the table, with what its key has set and with the condition in force.
template <class Space, class Use>
void ForEachKeyed(Space& workspace, const Use& use) {
  auto& keyed = workspace.keyed;
  use(kConditions[kTyreCondition], keyed.TyreLength, workspace.TyreLength);
  use(kConditions[kCheckNeCondition], keyed.CheckNe, workspace.CheckNe);
  use(kConditions[kShiftNeCondition], keyed.ShiftNe, workspace.ShiftNe);
  use(kConditions[kMaxSpeedCondition], keyed.MaxSpeed, workspace.MaxSpeed);
  use(kConditions[kMaxNeCondition], keyed.MaxNe, workspace.MaxNe);
}

/// Takes the lines "KEY=value" to the end of the file. Lines without "=", unknown keys, values that are no
/// numbers and those outside their ranges leave the condition as it was; a later line overrides an earlier
/// one of its key. Raises nothing.
void ReadListKeys(TextReader& reader, Workspace& workspace);

/// Each condition that still stands as a key has set it goes back to what it was before the key; one that the
/// user or a plan has changed since stays. Raises nothing.
void ReleaseListKeys(Workspace& workspace);

}  // namespace veldrin
