// The working file of this instance, in the temporary folder, and the history of data files, in the menu and
// in the settings store.
//
// Every running instance keeps the last consistent plan in a working file of its own, VELD000.TMP onward.
// Whether one of them exists tells who is alone: the first instance deletes leftovers of a crash, the last to
// end saves the history. The history belongs to one machine: to the slot of its registered extension, or to
// the key "Sub", which serves one machine at a time.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Sets `TempDir` to the temporary folder, without a separator at its end. Raises nothing.
/// Kept: the chooser keeps its folder in the same variable, so who needs the temporary folder calls this.
void FindTempDir(Program& program);

/// Takes the first free working file, with one empty line in it, as `WorkFile`; deletes leftovers before when
/// no other instance runs. Returns the instance number, counted from 1. Throws EndOfProgram when all 1000
/// are taken; raises the file faults when the file cannot be made.
int ChooseWorkFile(Program& program);

/// Adds the stored entries of the loaded machine to the history menu, but for files that are gone. A stored
/// count that is no number reads as the number it begins with, else as 0. Raises nothing.
/// Kept: a stored history longer than `HistoryMax` is loaded whole.
void LoadHistory(Program& program);

/// Stores the history of the loaded machine, where one is whole, and the main window's place. Failing writes
/// go unnoticed, and a place that 16 bits do not hold is not taken. Raises nothing. Kept: values of entries
/// beyond the stored count are left behind.
void SaveHistory(Program& program);

/// Makes `path` the newest entry; one that is there already, the case of letters aside, moves up. The oldest
/// drops out beyond `HistoryMax`. Raises nothing.
/// Kept: a path that is the newest already keeps its spelling.
void AddToHistory(Program& program, const std::string& path);

/// Takes the first entry that is exactly `path` out of the menu. True when that was the only one; then the
/// separator above is hidden too. Raises nothing.
/// Kept: the clearing entry and its separator stay; the Delete role hides them by itself.
bool RemoveFromHistory(Program& program, const std::string& path);

/// Empties the history menu. The store keeps its values until the next SaveHistory. Raises nothing.
void ClearHistory(Program& program);

/// Settles which machine is loaded, deletes the working file, saves the history if no other instance has one
/// left, and ends the program: always throws EndOfProgram.
[[noreturn]] void EndProgram(Program& program);

}  // namespace veldrin
