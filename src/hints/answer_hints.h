// What the two answers of the decision panel do, by its question.
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// What `Command8` or `Command9` does with the question on the panel; empty without one. Raises nothing.
BothLanguages AnswerHint(const Program& program, const Control& answer);

}  // namespace veldrin
