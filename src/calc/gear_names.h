// How gears are called.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace veldrin {

/// "1ST" to "6TH".
inline std::string GearName(int gear) {
  constexpr const char* kNames[] = {"1ST", "2ND", "3RD", "4TH", "5TH", "6TH"};
  return kNames[gear - 1];
}

/// "1ST", "1ST and 2ND", "1ST, 2ND and 3RD".
inline std::string GearNames(const std::vector<int>& gears) {
  std::string names;
  for (std::size_t k = 0; k < gears.size(); ++k) {
    if (k > 0) names += k + 1 == gears.size() ? " and " : ", ";
    names += GearName(gears[k]);
  }
  return names;
}

/// "1st" to "6th", in running text.
inline std::string GearWord(int gear) {
  constexpr const char* kNames[] = {"1st", "2nd", "3rd", "4th", "5th", "6th"};
  return kNames[gear - 1];
}

}  // namespace veldrin
