// Random machines: small lists that the reader takes, with holes, forbidden pairs and keys, and the file of
// their parts.
#pragma once

#include "tests/monkey/random.h"

#include <string>

namespace veldrin::monkey {

struct RandomMachine {
  std::string name;
  /// The machine list, lines ended by CR LF.
  std::string list;
  /// The combination file, empty where the machine has none.
  std::string parts;
  /// A plan of its first rows, with the remark of its first line; empty where there is none.
  std::string plan;
};

RandomMachine MakeRandomMachine(Random& random);

}  // namespace veldrin::monkey
