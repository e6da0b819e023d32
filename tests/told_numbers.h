// The numbers that a text for people tells, to be held against the table that they repeat.
#pragma once

#include "model/limits.h"

#include <regex>
#include <string>
#include <vector>

namespace veldrin {

using Numbers = std::vector<float>;

/// Whatever stands in digits, in the order of the text; the point is the decimal separator.
inline Numbers NumbersIn(const std::string& text) {
  static const std::regex kNumber("[0-9]+(\\.[0-9]+)?");
  Numbers numbers;
  for (std::sregex_iterator found(text.begin(), text.end(), kNumber); found != std::sregex_iterator();
       ++found) {
    numbers.push_back(std::stof(found->str()));
  }
  return numbers;
}

inline Numbers EndsOf(const Limits& limits) {
  return {static_cast<float>(limits.lowest), static_cast<float>(limits.highest)};
}

}  // namespace veldrin
