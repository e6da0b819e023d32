// What is told beside the windows by more than one unit, and how it is told.
#pragma once

#include "model/limits.h"
#include "platform/notices.h"
#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Tells something that passes by. Raises nothing, and so do all functions here.
void Inform(Program& program, BothLanguages text);

/// A number was refused: what it is of, and between which ends and in which unit it has to lie.
void TellRefusedNumber(Program& program, const BothLanguages& name, const Limits& limits, const char* unit);

/// The names of the running conditions by their places in kConditions, and their units.
const BothLanguages& ConditionName(int condition);
const char* ConditionUnit(int condition);

/// That the 3rd and 4th gear of the plan on the screen exclude each other.
BothLanguages ForbiddenPairWords(const Workspace& workspace);

/// A file was written, or was not and why.
void TellSaved(Program& program, const std::string& path);
void TellNotSaved(Program& program, const std::string& path, int fault);

}  // namespace veldrin
