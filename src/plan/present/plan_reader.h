// Plan files, read strictly: what the program passes over in silence is named here with file and line.
#pragma once

#include "model/workspace.h"

#include <string>

namespace veldrin {

/// A plan of a machine: `workspace` is the machine with the plan's rows, tyre length, shift revolutions and
/// stored speeds (as its baseline), and a scale that holds them as the window would have widened it.
struct PlanAtHand {
  std::string path;
  Workspace workspace;
  std::string remark;  // its lines parted by '\n'
};

/// The machine that the text of a plan file names in its first line, as written. Throws BadInput where that
/// is no plan's.
std::string MachineOfPlan(const std::string& path, const std::string& text);

/// The plan of the file's text on `machine`. Throws BadInput for a plan of another machine, a line that is no
/// number or out of range, and rows and pairs that the machine does not have.
PlanAtHand ReadPlan(const std::string& path, const std::string& text, const Workspace& machine);

/// A sentence on the first gear whose stored speed is not the one of its rows; empty where all are. `plan`
/// has the running conditions of its file.
std::string StoredSpeedWarning(const PlanAtHand& plan);

}  // namespace veldrin
