#include "calc/plan_search.h"

namespace veldrin {

namespace {

/// Sets the later ones of equal plans to the empty text and counts them.
int EmptyDuplicates(Workspace& workspace) {
  int removed = 0;
  for (int i = 1; i < workspace.PlanCount; ++i) {
    for (int j = i + 1; j <= workspace.PlanCount; ++j) {
      if (workspace.PlanList[i] != workspace.PlanList[j]) continue;
      ++removed;
      workspace.PlanList[j].clear();
    }
  }
  return removed;
}

/// Closes the gaps.
/// Kept: an empty slot that moved into the place just looked at is not looked at again, and the walk goes on
/// to the count as it stood before; so some empty slots may stay in the list.
void CompactPlans(Workspace& workspace) {
  const int limit = workspace.PlanCount;
  for (int i = 1; i <= limit; ++i) {
    if (!workspace.PlanList[i].empty()) continue;
    if (i == workspace.PlanCount) {
      --workspace.PlanCount;
      return;
    }
    for (int k = i; k < workspace.PlanCount; ++k) workspace.PlanList[k] = workspace.PlanList[k + 1];
    --workspace.PlanCount;
  }
}

}  // namespace

void RemoveEqualPlans(Workspace& workspace) {
  if (EmptyDuplicates(workspace) > 0) CompactPlans(workspace);
}

}  // namespace veldrin
