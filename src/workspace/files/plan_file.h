// Plan data files: one plan of one machine as plain text, one item a line.
//
//   1        FROM:MACHINE.RAT     read as a field by the opener, checked by RestorePlan
//   2, 3     tyre length, shift-up revolutions
//   4 to 9   speeds of gears 1 to 6
//   10, 11   primary: first and last two characters of the row's text
//   12, 13   final, in the same way
//   14       texts of the six gear pairs, joined by "-"
//   15 on    the remark, to the end of the file
//
// Lines end in CR LF. Decimals are written with the system's separator and repaired by FixDecimal when read.
// The working file, from which Restore reads back, has the same lines. Which file a plan goes to is the
// chooser's matter, which file it comes from the opener's; the lines themselves are plan_lines.h's.
//
// What holds back whom while a plan is read: under "MODULE1" the gear labels do not refresh and the remark
// does not count as the user's; under "INIT" and "ORIGINAL" the scroll bar of the revolutions is silent;
// under "READ2" the one refresh compares the stored speeds with the computed ones.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Reads the plan that stands open on the reader handle, line 1 consumed, shows it, closes the handle and
/// writes the working file. `ResultWord` becomes "OK", or "DIFF" when a stored speed lies further from the
/// computed one than "+-0" allows: the decision panel then asks, and what could edit the plan is disabled.
/// Rows and gear pairs that the machine does not have leave the row in force. Faults travel to the caller,
/// with the handle left open and what was read left in the workspace and on show: 13 and 6 for a line that is
/// no number or too large, 62 at the end of the file, 9 for a row outside its table, and those of the working
/// file.
void ReadPlanFile(Program& program);

/// Reads the plan back from the working file. Scales, title (but for the mark of changes), `DataFile`,
/// history and chooser stay as they are; a speed that differs is not acted on. False, and nothing happens,
/// where the file's first line does not name the loaded machine. Raises what ReadPlanFile does, and the
/// faults of a file that cannot be opened.
bool RestorePlan(Program& program);

/// Writes the plan to the file open on the plan handle, then the working file. `DataChanged` becomes "NO".
/// The caller closes the handle. Raises the file faults, and 9 without a plan.
void SavePlanFile(Program& program);

/// Writes the plan to the working file in the place of what it held; it is no longer stale. One that cannot
/// be written is. Raises the file faults, and 9 without a plan.
void WriteWorkFile(Program& program);

}  // namespace veldrin
