// What each row of a machine costs in parts, seen from the plan that is built in now.
#pragma once

#include "model/workspace.h"

namespace veldrin {

/// Parts to be changed for a row, 0 where nothing is; all 0 where there is no present plan.
struct PartCosts {
  Table<int, 1, kPrimaryLimit> primary;
  Table<int, 1, kFinalLimit> final;
  Grid2D<int, kGears, kGearRowLimit> gear;  // those of 3rd and 4th gear stand in `joint` alone
  /// (row of 3rd, row of 4th): together, since one part may serve both.
  Grid2D<int, kGearRowLimit, kGearRowLimit> joint;
};

}  // namespace veldrin
