// Brings a kept plan back to the screen, as it stood: with its list, under its old title, changed and
// unsaved, and with the requests where these were being entered.
//
// What the disk has of the plan comes first, its file or a first plan by Mode, and the kept state is laid
// over that: Restore leads back to the file, as it did before.
#pragma once

#include "safety/kept_plan.h"
#include "workspace/program.h"

#include <optional>

namespace veldrin {

/// What came of it.
enum class Reopening {
  Done,
  Busy,      // a question or another window waits for the user
  NoList,    // the machine's list is gone or is refused; what was on the screen stands
  NotInList  // the list no longer has a row or pair of the plan; the machine has been loaded
};

struct Reopened {
  Reopening result = Reopening::Done;
  std::optional<PlanState> ground;  // what the disk has of the plan
};

/// To be called in an event of the program. The plan that was on the screen gives way unasked: who watches
/// over it keeps it. Raises what reading a plan raises.
Reopened ReopenKept(Program& program, const PlanState& kept);

}  // namespace veldrin
