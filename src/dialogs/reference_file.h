// Quick-ratio and reference files: speeds to search for, read by the chooser. Both put "REF_QR" in force and
// start a search by writing the tyre length's box under "QUICK".
//
//   quick ratio   a remark, tyre length, revolutions and six speeds as fields with a decimal point, then text
//   reference     a plan file, whose head is read line by line in either decimal form
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// OK in the Quick-Ratio role. Errors are skipped statement by statement, each leaving the old value.
void LoadQuickRatioFile(Program& program);

/// OK in the Reference role, in the same way.
void LoadReferenceFile(Program& program);

}  // namespace veldrin
