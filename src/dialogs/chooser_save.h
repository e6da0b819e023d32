// The chooser's Save role.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// OK in the Save role. With the prompt hidden it is the first OK: the name is made up, and a new file is
/// written at once, an existing one asked about; without a name nothing happens. With the prompt showing it
/// answers that question. What follows a save, `PendingAction` tells. A plan that cannot be written is told
/// on the prompt line by the cause; the file stays as it was. Throws EndOfProgram after "Save and Quit".
void SaveFromChooser(Program& program);

/// The answer alone: overwrites the file that was asked about in the folder on show. Does nothing where no
/// question stands for it. Throws as above.
void ConfirmSave(Program& program);

}  // namespace veldrin
