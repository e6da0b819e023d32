// What the program will do badly with a machine whose list it reads: judged by the tables as the list reader
// fills them.
#pragma once

#include "model/workspace.h"
#include "plan/check/list_places.h"
#include "plan/check/list_remarks.h"

namespace veldrin {

/// Adds warnings. `machine` comes from a list without faults, `places` tells where its parts stand.
void CheckMachine(const Workspace& machine, const ListPlaces& places, ListRemarks& remarks);

}  // namespace veldrin
