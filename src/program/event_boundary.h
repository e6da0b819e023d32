// The one place where faults and the end of the program are caught.
#pragma once

#include "workspace/program.h"

#include <functional>

namespace veldrin {

/// Runs one event of the user, of a timer or of the system. A fault that no routine handled shows the error
/// box and ends the program; so does an exception of the standard library, as fault 7 or 51. When the program
/// ends inside a modal window's events, EndOfProgram goes on through the routine that showed the window, up
/// to the outermost event, which returns. After the program has ended nothing is run.
void RunEvent(Program& program, const std::function<void()>& event);

}  // namespace veldrin
