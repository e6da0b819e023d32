// The user of one sequence: makes a machine, starts the program on it, and goes on by habit and by chance.
#pragma once

#include "tests/monkey/random.h"
#include "tests/monkey/walk.h"

#include <cstdint>

namespace veldrin::monkey {

/// The lines of sequence `sequence` of `seed`. What a user does next depends on what they see.
LineSource RandomUser(std::uint64_t seed, std::uint64_t sequence);
/// The same by any other chance.
LineSource RandomUser(Random random);

}  // namespace veldrin::monkey
