// Puts the program together: every unit's handlers and operations find their place.
#pragma once

#include "workspace/program.h"

#include <memory>
#include <string>

namespace veldrin {

/// A program on `machine`, complete, not started.
std::unique_ptr<Program> AssembleProgram(Machine& machine);

/// Starts the program with the text of its command line: the splash window's Load runs.
void StartProgram(Program& program, const std::string& commandLine);

}  // namespace veldrin
