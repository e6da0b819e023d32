// The lines of a plan data file: what they say into the workspace, and the plan as their text. What stands in
// which line, plan_file.h tells. The main window is not known here.
#pragma once

#include "model/workspace.h"
#include "runtime/text_file.h"

#include <string>

namespace veldrin {

/// Whether a first line names the loaded machine. That of a machine left meanwhile does not, nor does the
/// empty line of a working file that no plan was written to.
bool NamesLoadedMachine(const Workspace& workspace, const std::string& line);

/// A number on a line of its own, its separator repaired. Raises 62 at the end, 13 and 6 for what is no
/// 32-bit number.
float ReadDecimal(const Workspace& workspace, TextReader& reader);

/// Lines 4 to 9 into the baseline. Raises what ReadDecimal does, what was read before being stored.
void ReadStoredSpeeds(Workspace& workspace, TextReader& reader);

/// The teeth, the plan line and the remark's first line. Raises what ReadDecimal does.
void ReadChoice(Workspace& workspace, TextReader& reader);

/// Rows and gear pairs of the choice that was read; what the machine does not have leaves the row in force.
/// Raises 9 where the machine has more rows than the tables.
void FindChoice(Workspace& workspace);

/// All lines of the plan, line ends included. Raises 9 without a plan.
/// Kept: teeth outside 10 to 99 do not fit the two characters of their line and are not found again.
std::string PlanText(const Workspace& workspace, const std::string& remark);

}  // namespace veldrin
