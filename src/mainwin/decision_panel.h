// The decision panel: a question in `Label17`, an answer on each of `Command8` and `Command9`.
//
//   message  question                              raised by            answers
//   13       the file's speeds do not fit          the plan reader      18, 22
//   14       no plan was found                     the search           19, 23
//   15       quit with unsaved changes             the close query      20, 24
//   16       load with unsaved changes             the openers          21, 25
//   17       load an entry of the history with     the history          21, 25
//            unsaved changes
//
// The answers tell the questions apart by `Label17`'s text alone, so 16 and 17 differ in a blank.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// Binds `Command8` and `Command9`.
void AttachDecisionPanel(Program& program);

}  // namespace veldrin
