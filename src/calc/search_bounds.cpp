#include "calc/search_bounds.h"

namespace veldrin {

SearchBounds AutoBounds(int mainGear) {
  SearchBounds bounds;
  for (int gear = 1; gear <= kGears; ++gear) bounds[gear] = {kAutoPasses, kAutoPasses, false};
  if (mainGear != 0) bounds[mainGear] = {1, 1, true};
  return bounds;
}

SearchBounds MixedBounds(const Workspace& workspace, const Table<bool, 1, kGears>& manual) {
  SearchBounds bounds;
  for (int gear = 1; gear <= kGears; ++gear) {
    const double minus = workspace.ToleranceMinus[gear];
    const double plus = workspace.TolerancePlus[gear];
    // Kept: only the lower bound widens from pass to pass, the upper one grows once.
    const double sunk = manual[gear] ? minus : minus + kMixedPasses - 1;
    bounds[gear] = {sunk, manual[gear] ? plus : plus + 1, manual[gear]};
  }
  return bounds;
}

}  // namespace veldrin
