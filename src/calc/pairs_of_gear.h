// The rows of a gear that hold a pair, side by side for a walk over all combinations.
#pragma once

#include "model/workspace.h"

#include <array>

namespace veldrin {

/// The rows without the text kNoPair, in row order; the first `count` elements of each array are in use.
struct GearPairs {
  std::array<int, kGearRowLimit> row;
  std::array<double, kGearRowLimit> drive;
  std::array<double, kGearRowLimit> driven;
  int count = 0;
  /// Whether some row has no driven teeth, so that its speed cannot be computed.
  bool lacksTeeth = false;
};

/// The pairs of `gear` (1..6) among the rows that list and tables hold. Raises nothing.
GearPairs PairsOf(const Workspace& workspace, int gear);

/// The same without the rows that lack driven teeth.
GearPairs PairsWithTeeth(const Workspace& workspace, int gear);

}  // namespace veldrin
