// Machine list files and the one way in for every file: the opener reads the first field to tell list files
// from plan files, the list reader goes on from the second field of the same open file.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Opens a list or plan file and reads it; the result stands in `ResultWord`:
///   "OK"            the file was read ("DIFF" when a plan's stored speeds do not fit)
///   "DATA"          a plan file, but no machine is loaded; `MachineName` and `MachineKey` name its machine
///   "ANOTHER"       a plan file of another machine; `MachineName` names it
///   "ANOTHER_LIST"  a list file where a plan was asked for; it stays open until that is confirmed
///   "NG"            no known kind, or a fault on the way, which is told on the chooser's `Label4`
/// Raises only what the telling itself raises.
void OpenAnyFile(Program& program, const std::string& path);

/// Reads a list from the reader handle, which stands behind the tag, and leaves the main window without a
/// plan ("BASING"). Sets `ResultWord` to "OK", or "NG" at a keyword that differs; closes the file. Faults of
/// single statements are skipped. `CallerWord` stays "MODULE1".
void ReadMachineList(Program& program);

/// The box that answers a command line that names no list or plan file.
void ShowBadCommandLine(Program& program);

}  // namespace veldrin
