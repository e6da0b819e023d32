// The strict reading of a list's sizes of sprockets and of its primary pairs.
#pragma once

#include "plan/check/section_reader.h"

namespace veldrin {

/// Reads a list of at most `limit` sizes behind its keyword. False where what follows cannot be told.
bool CheckSizes(SectionReader& list, const char* keyword, int limit);

/// Reads the primary pairs up to and with their end mark. `gearRows` is what the list says of the rows that
/// follow, 0 for nothing possible. False where what follows cannot be told.
bool CheckPrimaries(SectionReader& list, int gearRows);

}  // namespace veldrin
