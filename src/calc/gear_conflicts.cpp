#include "calc/gear_conflicts.h"

#include "model/limits.h"

#include <bit>

namespace veldrin {

std::vector<Conflict> GearConflicts::Smallest() const {
  // A set that was met was met with all that it holds.
  std::array<bool, kSets> met = seen_;
  for (int bit = 1; bit < kSets; bit <<= 1) {
    for (int set = 0; set < kSets; ++set) {
      if ((set & bit) != 0 && met[Index(set)]) met[Index(set ^ bit)] = true;
    }
  }
  std::vector<Conflict> conflicts;
  for (int size = 1; size <= kGears && conflicts.empty(); ++size) {
    for (int set = 1; set < kAllowed; ++set) {
      if (std::popcount(static_cast<unsigned>(set)) != size) continue;
      constexpr int both = Bit(3) | Bit(4);
      const bool forbiddenPairs = met[Index(set)] && (set & both) == both && !met[Index(set | kAllowed)];
      if (met[Index(set)] && !forbiddenPairs) continue;
      Conflict& conflict = conflicts.emplace_back();
      conflict.forbiddenPairs = forbiddenPairs;
      for (int gear = 1; gear <= kGears; ++gear) {
        if ((set & Bit(gear)) != 0) conflict.gears.push_back(gear);
      }
    }
  }
  return conflicts;
}

}  // namespace veldrin
