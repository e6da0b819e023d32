#include "model/gear_pairs.h"

#include <algorithm>

namespace veldrin {

void SplitPairs(const std::string& line, Table<std::string, 1, kGears>& pairs) {
  std::size_t begin = 0;
  for (int gear = 1; gear < kGears; ++gear) {
    const std::size_t end = std::min(line.find('-', begin), line.size());
    pairs[gear] = line.substr(begin, end - begin);
    begin = std::min(end + 1, line.size());
  }
  pairs[kGears] = line.substr(begin);
}

void FindGearPairs(Workspace& workspace, const std::string& line) {
  Table<std::string, 1, kGears> pairs;
  SplitPairs(line, pairs);
  pairs[kGears] = pairs[kGears].substr(0, pairs[kGears].find('-'));
  for (int gear = 1; gear <= kGears; ++gear) {
    for (int row = 1; row <= workspace.GearRows; ++row) {
      if (workspace.GearTable(gear, row) != pairs[gear]) continue;
      workspace.PlanIndex[gear] = static_cast<std::int16_t>(row);
      break;
    }
  }
}

}  // namespace veldrin
