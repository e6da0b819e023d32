// What the answers of the decision panel do. The panel's table says which is whose.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

// To a file whose speeds differ.
void RecalculateBySpeed(Program& program);
void EndSpeedsDiffer(Program& program);

// To a search without a plan.
void RecalculateByFullAuto(Program& program);
void EnterRequestsAgain(Program& program);

// To the window's close.
void SaveAndQuit(Program& program);
void QuitWithoutSaving(Program& program);

// To a load.
void SaveAndLoad(Program& program);
void LoadWithoutSaving(Program& program);

// To an entry of the history.
void SaveAndReopen(Program& program);
void ReopenWithoutSaving(Program& program);

/// The chooser in the role that a mode's word names; nothing for other words. One that is up already turns
/// into that role, and the call returns at once.
void OpenChooserFor(Program& program, const std::string& modeWord);

}  // namespace veldrin
