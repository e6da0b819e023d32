#include "calc/gear_conflicts.h"

#include "model/limits.h"

namespace veldrin {

bool GearConflicts::WasMet(int set) const {
  for (int seen = 0; seen < kSets; ++seen) {
    if (seen_[Index(seen)] && (seen & set) == set) return true;
  }
  return false;
}

std::vector<Conflict> GearConflicts::Smallest() const {
  std::vector<Conflict> conflicts;
  for (std::size_t size = 1; size <= kGears && conflicts.empty(); ++size) {
    for (int set = 1; set < kAllowed; ++set) {
      Conflict conflict;
      for (int gear = 1; gear <= kGears; ++gear) {
        if ((set & Bit(gear)) != 0) conflict.gears.push_back(gear);
      }
      if (conflict.gears.size() != size) continue;
      constexpr int both = Bit(3) | Bit(4);
      conflict.forbiddenPairs = WasMet(set) && (set & both) == both && !WasMet(set | kAllowed);
      if (!WasMet(set) || conflict.forbiddenPairs) conflicts.push_back(conflict);
    }
  }
  return conflicts;
}

}  // namespace veldrin
