// The settings: shows the values that a workspace starts with and writes them to the store. Nothing entered
// here changes the running workspace; the values are read at the next start.
//
// The main window is hidden meanwhile and comes back when this window goes, by whatever road. Checks of the
// values stand in settings_validation.h.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds the events of every settings window that will be loaded.
void AttachSettingsDialog(Program& program);

}  // namespace veldrin
