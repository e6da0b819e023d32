// The strict reading of a list's matrix of 3rd and 4th gear.
#pragma once

#include "plan/check/section_reader.h"

namespace veldrin {

/// Reads the matrix of `rows` by `rows` numbers behind its keyword, up to the key lines.
void CheckMatrix(SectionReader& list, int rows);

}  // namespace veldrin
