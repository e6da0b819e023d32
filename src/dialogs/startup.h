// The start: the splash window's Load prepares the workspace, its timer loads the other windows and opens
// what the command line names, then hands over to the main window or, where nothing usable was found, to the
// chooser. Reopening a file from the history stands in history_reopen.h.
//
//   Load ─ 100 ms ─ first tick ─┬─ no file given ───────────── main window, or list chooser without a machine
//                               └─ file opened ─┬─ refused ─── main window and data chooser
//                                               └─ 1200 ms ─── second tick: main window or list chooser
//
// `ResultWord` carries the result of the opening from the first tick to the second. The chooser is set up
// and shown under "FORM1_TIMER", so that its prompt line keeps what the opener wrote there.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// The long form of a path from the command line: every part behind the root takes its name on disk, letter
/// case included. Parts that are not there stay as they are, and so does a part that begins within the length
/// of a root. Raises nothing.
std::string LongCommandPath(const Program& program, const std::string& text);

/// Prepares the workspace; `CommandFile` holds the raw text of the command line and becomes its long path.
/// Throws EndOfProgram when no working file is free. Raises the faults of a working file or older settings
/// that cannot be had, 13 and 6 for stored settings that are no numbers or too large.
void Form1_Load(Program& program);

/// The two ticks. Raises the faults that the other windows' Load raises; EndOfProgram passes through.
void Form1_Timer1_Timer(Program& program);

/// Binds the splash window's events and the history entries of the menu.
void AttachStartup(Program& program);

}  // namespace veldrin
