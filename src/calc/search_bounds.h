// How near the two searches want a gear to its request: pass by pass, and in the widest of their passes.
#pragma once

#include "calc/pass_rule.h"
#include "model/workspace.h"

namespace veldrin {

inline constexpr int kAutoPasses = 20;   // the tolerance of pass n is n km/h
inline constexpr int kMixedPasses = 21;  // the 21st widening goes beyond 20 km/h

/// The rules of the six gears.
using PassRules = Table<PassRule, 1, kGears>;

/// Those of SearchAuto with `mainGear` (1..6, 0 for none). Raises nothing.
PassRules AutoRules(int mainGear);

/// Those of SearchMixed with the tolerances of `workspace`. Raises nothing.
PassRules MixedRules(const Workspace& workspace, const Table<bool, 1, kGears>& manual);

/// Both in km/h and both allowed: the error, speed less request, lies in -below..above.
struct GearBounds {
  double below = 0;
  double above = 0;
  /// Whether these bounds hold in every pass, as those of the main gear and of MANUAL gears do.
  bool held = false;

  bool Hold(float error) const { return error >= -below && error <= above; }
};

using SearchBounds = Table<GearBounds, 1, kGears>;

/// The bounds of the widest pass of the two searches. Raise nothing.
SearchBounds AutoBounds(int mainGear);
SearchBounds MixedBounds(const Workspace& workspace, const Table<bool, 1, kGears>& manual);

}  // namespace veldrin
