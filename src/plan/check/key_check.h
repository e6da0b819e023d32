// The strict reading of a list's key lines. The program ignores what it cannot take, so nothing here is a
// fault.
#pragma once

#include "plan/check/section_reader.h"

namespace veldrin {

/// Reads the key lines to the end of the file.
void CheckKeyLines(SectionReader& list);

}  // namespace veldrin
