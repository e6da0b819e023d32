// What users write into boxes: valid, borderline and silly.
#pragma once

#include "tests/monkey/random.h"
#include "workspace/program.h"

#include <string>

namespace veldrin::monkey {

/// A text for a box or an editable combo.
std::string TextFor(Random& random, const Program& program, const Control& box);

/// A name for a plan that is to be saved or deleted.
std::string PlanName(Random& random, const Program& program);

}  // namespace veldrin::monkey
