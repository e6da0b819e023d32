// bench-search: how long a whole FULL AUTO search takes on the largest tables, beside the plain loop that the
// tests hold it against. Each case asks for speeds that nothing meets, so that all passes are made.
//
// Prints the best of several rounds in microseconds, how many times faster the search is, and the time that
// the nearest combination takes. Exit status 1 when the two disagree.
#include "calc/nearest_plan.h"
#include "calc/plan_search.h"
#include "tests/calc/plain_search.h"
#include "tests/calc/search_tables.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace veldrin;

constexpr int kRounds = 15;
constexpr float kBeyondReach = 5000;

/// 8 primary rows, 200 final rows and 10 rows a gear. With `alike` all primary and all final rows have the
/// same ratio, so that what one combination meets is met by all.
Workspace LargestMachine(bool alike) {
  Workspace workspace;
  workspace.MachineKey = "bench";
  workspace.ShiftNe = 13000;
  workspace.TyreLength = 1.9F;
  workspace.MinPlan = 1;
  workspace.PrimaryCount = kPrimaryFileLimit;
  workspace.FinalDriveCount = kFinalDriveLimit;
  workspace.FinalDrivenCount = kFinalDrivenLimit;
  for (int p = 1; p <= kPrimaryFileLimit; ++p) SetRatio(workspace.PrimaryTable[p], 20, alike ? 62 : 55 + p);
  for (int f = 1; f <= kFinalLimit; ++f) {
    SetRatio(workspace.FinalTable[f], alike ? 16 : 12 + f % 10, alike ? 40 : 31 + f / 10);
  }
  workspace.GearRows = kGearRowLimit;
  for (int gear = 1; gear <= kGears; ++gear) {
    for (int row = 1; row <= kGearRowLimit; ++row) {
      SetPair(workspace, gear, row, std::to_string(gear) + "." + std::to_string(row), 10 + 3 * gear + row,
              30);
    }
  }
  return workspace;
}

/// Gears 1 to 5 of every combination meet their requests in the first pass, gear 6 never.
Workspace UnmetAtGear6() {
  Workspace workspace = LargestMachine(true);
  for (int gear = 1; gear < kGears; ++gear) {
    workspace.SpeedRequest[gear] = static_cast<float>(std::round(plain::GearSpeed(workspace, 1, 1, gear, 5)));
  }
  workspace.SpeedRequest[6] = kBeyondReach;
  return workspace;
}

/// No combination comes past gear 1.
Workspace UnmetAtGear1() {
  Workspace workspace = LargestMachine(false);
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedRequest[gear] = kBeyondReach;
  return workspace;
}

/// Requests of a rider: of all combinations some come past each gear in each pass, none past gear 6.
Workspace UnmetByMost() {
  Workspace workspace = LargestMachine(false);
  for (int gear = 1; gear < kGears; ++gear) {
    workspace.SpeedRequest[gear] = static_cast<float>(60 + 25 * gear);
  }
  workspace.SpeedRequest[6] = kBeyondReach;
  return workspace;
}

template <class Search>
double Microseconds(Workspace& workspace, const Search& search) {
  const auto begin = std::chrono::steady_clock::now();
  if (search(workspace)) {
    std::fprintf(stderr, "bench-search: the requests were met\n");
    std::exit(1);
  }
  const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - begin;
  return time.count();
}

/// Measures both in turn and prints the line of the case.
void Measure(const char* name, Workspace workspace) {
  int signs = 0;
  const Blink blink = [&signs](int finalRow) { signs += finalRow; };
  double plainly = 1e300;
  double fast = 1e300;
  for (int round = 0; round < kRounds; ++round) {
    signs = 0;
    plainly = std::min(plainly,
                       Microseconds(workspace, [&](Workspace& w) { return plain::SearchAuto(w, 0, blink); }));
    const int expected = signs;
    signs = 0;
    fast = std::min(fast, Microseconds(workspace, [&](Workspace& w) { return SearchAuto(w, 0, blink); }));
    if (signs != expected) {
      std::fprintf(stderr, "bench-search: the two do not walk alike\n");
      std::exit(1);
    }
  }
  double nearest = 1e300;
  for (int round = 0; round < kRounds; ++round) {
    nearest = std::min(nearest, Microseconds(workspace, [](Workspace& w) {
                         return FindNearestPlans(w, AutoBounds(0)).conflicts.empty();
                       }));
  }
  std::printf("%-28s %12.0f %12.0f %8.1f %12.0f\n", name, plainly, fast, plainly / fast, nearest);
}

}  // namespace

int main() {
  std::printf("%-28s %12s %12s %8s %12s\n", "best of 15 rounds, us", "plain loop", "search", "times",
              "nearest");
  Measure("unmet at gear 1", UnmetAtGear1());
  Measure("met by 1..5, not at gear 6", UnmetAtGear6());
  Measure("met by some, gear by gear", UnmetByMost());
  return 0;
}
