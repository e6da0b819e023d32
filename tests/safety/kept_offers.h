// A folder in which copies of the program that are gone have left plans.
#pragma once

#include "safety/kept_offers.h"
#include "tests/safety/netted_program.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace veldrin {

inline constexpr std::size_t kOpen = 0;
inline constexpr std::size_t kKeepAsFile = 1;
inline constexpr std::size_t kForget = 2;

/// A copy of the program that does something and is gone.
inline void LeaveBehind(MemoryKeepFolder& folder, const std::string& file,
                        const std::function<void(NettedProgram& p)>& work) {
  NettedProgram p(folder, file);
  work(p);
  p.net->Secure();
}

inline void StepTwo(NettedProgram& p) {
  p.Step(2);
  p.Step(6);
}

class KeptOffersTest : public ::testing::Test {
 protected:
  MemoryKeepFolder folder;
};

}  // namespace veldrin
