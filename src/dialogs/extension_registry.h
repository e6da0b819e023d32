// The tie between a machine's plan files, whose extension is the machine's key, and the program, in the
// system's registry of file types. Its commands are the entries of `menu_reg`, Japanese in every language.
//
//   the machine's extension is    entry at the end of the menu    `ExtSlot`
//   unknown to the registry       offers to register it           0
//   registered                    none                            its slot
//   another program's             none                            that of the machine before
//   the program's by hand         none, it gets a slot of its own the new slot
//
// Slots 1 to `NumExtReg` are in use, each with an entry that removes it. `MenuRegCount` is the last entry:
// the offer where it exceeds `NumExtReg`. The history of an extension lies below its slot's key, and a slot
// that moves down leaves it behind.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Fills the operations of the extension menu and binds its entries.
void AttachExtensionRegistry(Program& program);

}  // namespace veldrin
