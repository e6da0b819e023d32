// The fields of a machine list file, read into the machine's tables. No window is touched here, so the
// console reads lists through it as well.
//
// A list is a stream of fields: the tag "LIST", the machine's name, the final-drive and final-driven sizes,
// the primary reductions, two free lines, the gear rows, the matrix of 3rd and 4th gear, and key lines to
// the end of the file.
#pragma once

#include "model/workspace.h"
#include "runtime/text_file.h"

namespace veldrin {

/// Reads everything behind the tag. False at a section keyword that differs: reading stops there, and what
/// was read stays. Any other fault of a statement is skipped: its field is consumed, its variable keeps its
/// value. The conditions under the last list's keys go back before this list's keys are taken; a list that is
/// not understood leaves them as they are. Raises nothing.
bool ReadListTables(TextReader& reader, Workspace& workspace);

/// Builds `FinalTable` from the two lists of sizes: every drive with every driven size, in list order. A
/// driven size of 0 leaves the row's `Ratio` at 0. Raises nothing.
void BuildFinalTable(Workspace& workspace);

/// Sorts both tables of ratios and keeps the texts of final rows 7 and 1.
void SortTables(Workspace& workspace);

/// How many final rows the two lists of sizes make.
int FinalRowCount(const Workspace& workspace);

/// Empties what a list fills before another one is read from the chooser; `MachineKey` as well.
void ClearMachine(Workspace& workspace);

}  // namespace veldrin
