// The strict reading of a list file. The program itself skips what it cannot read and can only say that the
// kind of a file is unknown; this names every fault with its line.
#pragma once

#include "plan/check/list_remarks.h"

#include <string>
#include <string_view>

namespace veldrin {

/// Everything wrong with a list of this text, in the order of its lines; nothing but warnings when it is
/// fine. `baseName` is the file's name without folder and extension, which the machine's should equal.
/// Where a fault leaves open how to go on, what follows is not looked at. Raises nothing.
ListRemarks CheckList(std::string_view text, const std::string& baseName);

}  // namespace veldrin
