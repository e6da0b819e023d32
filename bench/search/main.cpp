// bench-search: how long a whole FULL AUTO search takes beside the plain loop that the tests hold it against,
// and beside the bound of one product and one division for each row of each gear. Each case asks for speeds
// that nothing meets, so that all passes are made. On the largest tables that a list can fill, or on the
// lists named as arguments.
//
// Prints the best of several rounds in microseconds: plain loop, search, how many times faster that is, the
// bound, the search over the bound, the mixed search, and the nearest combination. Exit status 1 when two
// disagree.
#include "calc/gear_speed.h"
#include "calc/nearest_plan.h"
#include "calc/pairs_of_gear.h"
#include "calc/plan_search.h"
#include "model/list_tables.h"
#include "plan/files/list_file.h"
#include "plan/files/machine.h"
#include "platform/system_code_pages.h"
#include "tests/calc/plain_search.h"
#include "tests/calc/search_tables.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace veldrin;

constexpr int kRounds = 25;
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
    workspace.ToleranceMinus[gear] = workspace.TolerancePlus[gear] = 1;
    for (int row = 1; row <= kGearRowLimit; ++row) {
      SetPair(workspace, gear, row, std::to_string(gear) + "." + std::to_string(row), 10 + 3 * gear + row,
              30);
    }
  }
  return workspace;
}

/// Gears 1 to 5 of a combination in the middle meet their requests in the first pass, gear 6 never.
Workspace UnmetAtGear6(Workspace workspace) {
  const int primary = (workspace.PrimaryCount + 1) / 2;
  const int final = (FinalRowCount(workspace) + 1) / 2;
  for (int gear = 1; gear < kGears; ++gear) {
    int row = (workspace.GearRows + 1) / 2;
    while (row > 1 && workspace.GearTable(gear, row) == kNoPair) --row;
    while (row < workspace.GearRows && workspace.GearTable(gear, row) == kNoPair) ++row;
    const double speed = plain::GearSpeed(workspace, primary, final, gear, row);
    workspace.SpeedRequest[gear] = static_cast<float>(std::round(speed));
  }
  workspace.SpeedRequest[6] = kBeyondReach;
  return workspace;
}

/// No combination comes past gear 1.
Workspace UnmetAtGear1(Workspace workspace) {
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedRequest[gear] = kBeyondReach;
  return workspace;
}

/// Requests of a rider: of all combinations some come past each gear in each pass, none past gear 6.
Workspace UnmetByMost(Workspace workspace) {
  for (int gear = 1; gear < kGears; ++gear) {
    workspace.SpeedRequest[gear] = static_cast<float>(60 + 25 * gear);
  }
  workspace.SpeedRequest[6] = kBeyondReach;
  return workspace;
}

/// The best time of several rounds, each on a workspace of its own.
template <class Work>
double Microseconds(const Workspace& workspace, const Work& work) {
  double best = 1e300;
  for (int round = 0; round < kRounds; ++round) {
    Workspace own = workspace;
    const auto begin = std::chrono::steady_clock::now();
    work(own);
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - begin;
    best = std::min(best, time.count());
  }
  return best;
}

[[noreturn]] void Fail(const char* why) {
  std::fprintf(stderr, "bench-search: %s\n", why);
  std::exit(1);
}

/// The speeds of all rows by one product and one division each, summed up so that they are computed.
double AllRows(const Workspace& workspace) {
  double sum = 0;
  std::array<GearPairs, kGears> pairs;
  for (int gear = 1; gear <= kGears; ++gear)
    pairs[static_cast<std::size_t>(gear - 1)] = PairsOf(workspace, gear);
  for (int primary = 1; primary <= workspace.PrimaryCount; ++primary) {
    for (int final = 1; final <= FinalRowCount(workspace); ++final) {
      const double speed = SpeedBeforeGear(workspace, primary, final);
      for (const GearPairs& of : pairs) {
        for (std::size_t k = 0; k < static_cast<std::size_t>(of.count); ++k) {
          sum += speed * of.drive[k] / of.driven[k];
        }
      }
    }
  }
  return sum;
}

/// What a search told of, and where it ended.
struct Walked {
  long signs = 0;
  bool found = false;
  int plans = 0;

  friend bool operator==(const Walked&, const Walked&) = default;
};

/// Prints the line of the case.
void Measure(const char* name, const Workspace& workspace) {
  Walked plainly;
  Walked fast;
  const double plainTime = Microseconds(workspace, [&](Workspace& w) {
    plainly = {};
    plainly.found = plain::SearchAuto(w, 0, [&](int finalRow) { plainly.signs += finalRow; });
    plainly.plans = w.PlanCount;
  });
  const double time = Microseconds(workspace, [&](Workspace& w) {
    fast = {};
    fast.found = SearchAuto(w, 0, [&](int finalRow) { fast.signs += finalRow; });
    fast.plans = w.PlanCount;
  });
  if (!(plainly == fast)) Fail("the two searches do not walk alike");
  if (fast.found) Fail("the requests were met");
  volatile double sum = 0;
  const double bound = Microseconds(workspace, [&](Workspace& w) { sum = AllRows(w); });
  const double mixed = Microseconds(workspace, [&](Workspace& w) {
    if (SearchMixed(w, {}, [](int) {})) Fail("the requests were met");
  });
  const double nearest = Microseconds(workspace, [&](Workspace& w) {
    if (FindNearestPlans(w, AutoBounds(0)).conflicts.empty()) Fail("nothing stands in the way");
  });
  std::printf("%-28s %10.0f %8.0f %7.1f %8.0f %8.2f %8.0f %9.0f\n", name, plainTime, time, plainTime / time,
              bound, time / bound, mixed, nearest);
}

void MeasureAll(const Workspace& apart, const Workspace& alike) {
  Measure("unmet at gear 1", UnmetAtGear1(apart));
  Measure("met by 1..5, not at gear 6", UnmetAtGear6(alike));
  Measure("met by some, gear by gear", UnmetByMost(apart));
}

}  // namespace

int main(int count, char** words) {
  const std::string rounds = "best of " + std::to_string(kRounds) + " rounds, us";
  std::printf("%-28s %10s %8s %7s %8s %8s %8s %9s\n", rounds.c_str(), "plain loop", "search", "times",
              "bound", "of bound", "mixed", "nearest");
  if (count <= 1) MeasureAll(LargestMachine(false), LargestMachine(true));
  const CodePages pages = SystemCodePages(false);
  for (int k = 1; k < count; ++k) {
    std::string mistake;
    const std::optional<std::string> text = ReadListFile(words[k], pages, {}, mistake);
    if (!text) Fail((words[k] + (": " + mistake)).c_str());
    Workspace machine = ReadMachine(*text);
    if (machine.PrimaryCount == 0 || machine.GearRows < 1 || machine.GearRows > kGearRowLimit) {
      Fail((words[k] + std::string(": is no list that can be searched")).c_str());
    }
    machine.MinPlan = 1;
    for (int gear = 1; gear <= kGears; ++gear) machine.ToleranceMinus[gear] = machine.TolerancePlus[gear] = 1;
    std::printf("%s\n", words[k]);
    MeasureAll(machine, machine);
  }
  return 0;
}
