// What the mode's word tells. A question about a load puts the word of that load in its place until the load
// has come or has come to nothing; what is on show belongs to the mode beneath.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Whether there is a plan, or the speeds of a reference in its place, whatever is being done with it.
bool HasPlanOnShow(const Workspace& workspace);

/// Whether requests are being entered, where the plan's own controls are out of use. Not while a load that
/// was asked for stands in the word.
bool EntersRequests(const Workspace& workspace);

/// Whether the word is that of a load that was asked for.
bool AwaitsLoad(const Workspace& workspace);

/// The mode of what is on show, also while the word is that of a load.
const std::string& ModeOnShow(const Program& program);

/// Whether that is requests, entered by speed or by revolutions or those of a reference, and not a plan.
bool ShowsRequests(const Program& program);

}  // namespace veldrin
