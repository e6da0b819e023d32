// Where in a list file the parts of its machine stand, by lines from 1; 0 for what the list does not hold.
#pragma once

#include "model/workspace.h"

#include <map>
#include <string>

namespace veldrin {

struct ListPlaces {
  Table<int, 1, kGearRowLimit> gearRow;
  int matrix = 0;                   // its keyword
  std::map<std::string, int> keys;  // the key lines that are taken
};

}  // namespace veldrin
