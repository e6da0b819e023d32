// How gears are called.
#pragma once

#include <string>

namespace veldrin {

/// "1ST" to "6TH".
inline std::string GearName(int gear) {
  constexpr const char* kNames[] = {"1ST", "2ND", "3RD", "4TH", "5TH", "6TH"};
  return kNames[gear - 1];
}

/// "1st" to "6th", in running text.
inline std::string GearWord(int gear) {
  constexpr const char* kNames[] = {"1st", "2nd", "3rd", "4th", "5th", "6th"};
  return kNames[gear - 1];
}

}  // namespace veldrin
