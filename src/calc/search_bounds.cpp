#include "calc/search_bounds.h"

namespace veldrin {

namespace {

SearchBounds WidestOf(const PassRules& rules) {
  SearchBounds bounds;
  for (int gear = 1; gear <= kGears; ++gear) {
    const PassRule& rule = rules[gear];
    bounds[gear] = {rule.sinks - rule.lower, rule.upper + rule.grows, rule.sinks == 0 && rule.grows == 0};
  }
  return bounds;
}

}  // namespace

PassRules AutoRules(int mainGear) {
  PassRules rules;
  for (int gear = 1; gear <= kGears; ++gear) {
    const int widenings = gear == mainGear ? 0 : kAutoPasses - 1;
    rules[gear] = {-1, 1, widenings, widenings};
  }
  return rules;
}

PassRules MixedRules(const Workspace& workspace, const Table<bool, 1, kGears>& manual) {
  PassRules rules;
  for (int gear = 1; gear <= kGears; ++gear) {
    const double minus = workspace.ToleranceMinus[gear];
    const double plus = workspace.TolerancePlus[gear];
    // Kept: the upper bound is always the user's plus one, so it grows once, in the second pass, while the
    // lower bound sinks by one in every pass.
    rules[gear] = manual[gear] ? PassRule{-minus, plus, 0, 0} : PassRule{-minus, plus, kMixedPasses - 1, 1};
  }
  return rules;
}

SearchBounds AutoBounds(int mainGear) {
  return WidestOf(AutoRules(mainGear));
}

SearchBounds MixedBounds(const Workspace& workspace, const Table<bool, 1, kGears>& manual) {
  return WidestOf(MixedRules(workspace, manual));
}

}  // namespace veldrin
