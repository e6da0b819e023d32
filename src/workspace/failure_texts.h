// Why a file could not be read, written or deleted, in words for the chooser's prompt line. They stand beside
// the numbered messages, which have none for these causes but that of a missing file.
#pragma once

#include "platform/notices.h"
#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Whether the fault tells of the file system and not of what a file holds: a name that is not possible, a
/// missing file or folder, no room, no permission, a drive or path that cannot be had.
bool IsFileFault(int fault);

/// The cause of a failed file operation, whatever the language in force.
BothLanguages FailureCause(int fault);

/// The cause of a failed file operation, in Japanese where the program speaks it, else in English; for a
/// missing file the message of the language in force. Any other fault gets a text that names no cause.
std::string FailureText(const Workspace& workspace, int fault);

/// Shows the cause on the prompt line, in front, and disables OK until something else is chosen.
void ShowFailure(Program& program, int fault);

/// Whether the prompt line shows one of these causes, the numbered message of a missing file aside.
bool ShowsFailure(const Program& program);

}  // namespace veldrin
