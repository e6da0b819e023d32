// The searches against the plain loops on thousands of random machines: every slot of the list, every count,
// every sign of life and every fault must be the same.
#include "calc/plan_search.h"
#include "tests/calc/plain_search.h"
#include "tests/calc/random_machine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

/// What a search left behind.
struct Outcome {
  bool found = false;
  int fault = 0;
  std::string result;
  int count = 0;
  std::vector<std::string> slots;
  std::vector<int> told;

  friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <class Search>
Outcome OutcomeOf(Workspace workspace, const Search& search) {
  Outcome outcome;
  const auto told = [&](int finalRow) { outcome.told.push_back(finalRow); };
  outcome.fault = Guarded([&] { outcome.found = search(workspace, told); });
  outcome.result = workspace.ResultWord;
  outcome.count = workspace.PlanCount;
  for (int slot = 0; slot <= kPlanLimit; ++slot) outcome.slots.push_back(workspace.PlanList[slot]);
  return outcome;
}

std::string Described(const Outcome& outcome) {
  std::string text = outcome.found ? "found" : "not found";
  text += ", fault " + std::to_string(outcome.fault) + ", " + std::to_string(outcome.count) +
          " plans, told " + std::to_string(outcome.told.size()) + ", \"" + outcome.result + "\"";
  for (const std::string& slot : outcome.slots) text += "\n  " + slot;
  return text;
}

/// How often each kind of outcome came, so that the random machines are known to reach all of them.
struct Tally {
  int found = 0;
  int failed = 0;
  int several = 0;
  int gaps = 0;
  int laterPass = 0;
  int subscript = 0;
  int division = 0;

  void Count(const Outcome& outcome, std::size_t combinations) {
    found += outcome.found;
    failed += !outcome.found && outcome.fault == 0;
    several += outcome.found && outcome.count > 1;
    laterPass += outcome.found && outcome.told.size() > combinations;
    subscript += outcome.fault == kFaultSubscript;
    division += outcome.fault == kFaultDivisionByZero || outcome.fault == kFaultOverflow;
    bool gap = false;
    for (int slot = 1; slot <= outcome.count && slot <= kPlanLimit; ++slot) {
      gap = gap || outcome.slots[static_cast<std::size_t>(slot)].empty();
    }
    gaps += gap;
  }
};

std::size_t CombinationsOf(const Workspace& workspace) {
  return static_cast<std::size_t>(workspace.PrimaryCount) * workspace.FinalDriveCount *
         workspace.FinalDrivenCount;
}

constexpr std::uint32_t kMachines = 10000;

TEST(SearchAuto, EqualsThePlainLoopOnRandomMachines) {
  Tally tally;
  for (std::uint32_t seed = 1; seed <= kMachines; ++seed) {
    RandomMachine random(seed);
    const Workspace workspace = random.Make();
    const int mainGear = random.Chance(60) ? 0 : random.Pick(1, 6);
    const Outcome plainly = OutcomeOf(
        workspace, [&](Workspace& w, const Blink& told) { return plain::SearchAuto(w, mainGear, told); });
    const Outcome outcome =
        OutcomeOf(workspace, [&](Workspace& w, const Blink& told) { return SearchAuto(w, mainGear, told); });
    ASSERT_TRUE(outcome == plainly) << "machine " << seed << "\nexpected " << Described(plainly)
                                    << "\nfound    " << Described(outcome);
    tally.Count(outcome, CombinationsOf(workspace));
  }
  EXPECT_GT(tally.found, 500);
  EXPECT_GT(tally.failed, 50);
  EXPECT_GT(tally.several, 100);
  EXPECT_GT(tally.laterPass, 100);
  EXPECT_GT(tally.gaps, 5);
  EXPECT_GT(tally.subscript, 50);
  EXPECT_GT(tally.division, 20);
}

TEST(SearchMixed, EqualsThePlainLoopOnRandomMachines) {
  Tally tally;
  for (std::uint32_t seed = 1; seed <= kMachines; ++seed) {
    RandomMachine random(seed + 1000000);
    const Workspace workspace = random.Make();
    Table<bool, 1, kGears> manual;
    const int share = random.Pick(0, 100);
    for (int gear = 1; gear <= kGears; ++gear) manual[gear] = random.Chance(share);
    const Outcome plainly = OutcomeOf(
        workspace, [&](Workspace& w, const Blink& told) { return plain::SearchMixed(w, manual, told); });
    const Outcome outcome =
        OutcomeOf(workspace, [&](Workspace& w, const Blink& told) { return SearchMixed(w, manual, told); });
    ASSERT_TRUE(outcome == plainly) << "machine " << seed << "\nexpected " << Described(plainly)
                                    << "\nfound    " << Described(outcome);
    tally.Count(outcome, CombinationsOf(workspace));
  }
  EXPECT_GT(tally.found, 500);
  EXPECT_GT(tally.failed, 50);
  EXPECT_GT(tally.several, 100);
  EXPECT_GT(tally.laterPass, 100);
  EXPECT_GT(tally.subscript, 50);
  EXPECT_GT(tally.division, 20);
}

}  // namespace
}  // namespace veldrin
