// The strict look at a machine's name, by which plan files find their list and the chooser the plan files.
#pragma once

#include "plan/check/field_scanner.h"
#include "plan/check/list_remarks.h"

#include <string>

namespace veldrin {

/// `baseName` is the list file's name without folder and extension.
void CheckMachineName(const ScannedField& name, const std::string& baseName, ListRemarks& remarks);

}  // namespace veldrin
