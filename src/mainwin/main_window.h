// The main window as a window: how it opens and closes, its timers but that of the search, and the menu
// entries that belong to nobody else. The panel's buttons and boxes, the layout, the report and the
// combination stand in units of their own.
//
// A close with unsaved changes is refused: the decision panel asks, and the window flashes until it is
// answered. The answers belong to the gear panel. A close that goes through ends the program.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Load: texts and fonts of the language, the menu of extensions, the window's place, colours and tolerances
/// of the gears, and the picture sizes that the screen has room for. A statement that fails is skipped.
/// Raises nothing.
void Form2_Load(Program& program);

/// The close query, for every way of closing; `reason` is a CloseReason. Refuses while there are unsaved
/// changes, unless `QuickQuit` holds. Raises nothing.
void Form2_QueryUnload(Program& program, int reason);

/// Binds the window's Load, QueryUnload and Unload, `Timer2` and `Timer3`, and the entries for deleting, the
/// data folder, quitting, clearing the history, fonts, colours, About and settings.
void AttachMainWindow(Program& program);

}  // namespace veldrin
