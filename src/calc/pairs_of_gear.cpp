#include "calc/pairs_of_gear.h"

#include <algorithm>

namespace veldrin {

namespace {

GearPairs Pairs(const Workspace& workspace, int gear, bool onlyWithTeeth) {
  GearPairs pairs;
  const int rows = std::min<int>(workspace.GearRows, kGearRowLimit);
  for (int row = 1; row <= rows; ++row) {
    if (workspace.GearTable(gear, row) == kNoPair) continue;
    const int driven = workspace.GearDrivenTeeth(gear, row);
    if (driven == 0 && onlyWithTeeth) continue;
    const auto k = static_cast<std::size_t>(pairs.count++);
    pairs.row[k] = row;
    pairs.drive[k] = workspace.GearDriveTeeth(gear, row);
    pairs.driven[k] = driven;
    pairs.lacksTeeth = pairs.lacksTeeth || driven == 0;
  }
  return pairs;
}

}  // namespace

GearPairs PairsOf(const Workspace& workspace, int gear) {
  return Pairs(workspace, gear, false);
}

GearPairs PairsWithTeeth(const Workspace& workspace, int gear) {
  return Pairs(workspace, gear, true);
}

}  // namespace veldrin
