// bench-safety: what the net beneath the program adds to a step of a spin button, in one run: the step as an
// event of the program without any painting, and the same with the net's look behind it. The disk is not
// waited for: plans are written by a thread of their own, once a second at most.
#include "tests/safety/netted_program.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

namespace {

constexpr int kRounds = 15;
constexpr int kSteps = 2000;

/// Microseconds of one step.
double TimeOf(const std::function<void(int)>& step) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < kSteps; ++i) step(i);
  return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count() / kSteps;
}

}  // namespace

int main() {
  using namespace veldrin;
  MemoryKeepFolder folder;
  NettedProgram netted(folder, kPlanPath);
  netted.Step(1);
  double without = 1e9;
  double with = 1e9;
  // In turn, so that both see the same load; the best counts.
  for (int round = 0; round < kRounds; ++round) {
    without = std::min(without, TimeOf([&](int i) {
                         RunEvent(*netted.program, [&] { user::Spin(netted.Main().Spin6[2], i % 2 == 0); });
                       }));
    with = std::min(with, TimeOf([&](int i) { netted.Step(2, i % 2 == 0); }));
  }
  std::printf("spin step without painting %6.1f us, with the net %6.1f us, the look %5.1f us\n", without,
              with, with - without);
  return 0;
}
