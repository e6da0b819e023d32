// The gear input panel of the main window: its commands, and the binding of all its units.
//
//   gear_panel_modes     which panel stands where     gear_panel_boxes   running conditions and remark
//   gear_panel_requests  speeds, tolerances           gear_panel_chart   the pointer on the chart
//   gear_panel_steps     arrows of the plan           gear_panel_lists   lists to pick from
//
// States that several of them set alike stand in workspace/control_states.h.
// `CallerWord` tells the Change events who is writing (`workspace/caller.h`).
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds every event of the panel: its commands and the load menus here, the rest through its units.
void AttachGearPanel(Program& program);

}  // namespace veldrin
