// What ended the program, in plain words: the run-time's own are for those who wrote it.
#pragma once

#include "platform/notices.h"
#include "workspace/program.h"

namespace veldrin {

/// Words for a fault that has ended the program, by its number and what the program was at. `inBox` tells
/// whether the event that ran last was a text box's.
BothLanguages FaultWords(const Program& program, int fault, bool inBox);

}  // namespace veldrin
