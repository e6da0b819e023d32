// The searches against the plain loops on thousands of random machines: every slot of the list, every count,
// every sign of life and every fault must be the same.
#include "calc/plan_search.h"
#include "tests/calc/plain_search.h"
#include "tests/calc/search_tables.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace veldrin {
namespace {

class RandomMachine {
 public:
  explicit RandomMachine(std::uint32_t seed) : random_(seed) {}

  /// From `lowest` to `highest`, both included.
  int Pick(int lowest, int highest) {
    return lowest + static_cast<int>(random_() % static_cast<std::uint32_t>(highest - lowest + 1));
  }
  bool Chance(int percent) { return Pick(1, 100) <= percent; }

  Workspace Make() {
    Workspace workspace;
    workspace.MachineKey = "x";
    workspace.ShiftNe = static_cast<std::int16_t>(100 * Pick(50, 240));
    workspace.TyreLength = Chance(50) ? 2.0F : static_cast<float>(Pick(100, 300)) / 100;
    workspace.MinPlan = static_cast<std::int16_t>(Chance(60) ? 1 : Pick(-1, 35));
    MakeRatios(workspace);
    MakeGears(workspace);
    MakeMatrix(workspace);
    MakeRequests(workspace);
    return workspace;
  }

 private:
  void MakeRatios(Workspace& workspace) {
    workspace.PrimaryCount = static_cast<std::int16_t>(Pick(Chance(5) ? 0 : 1, 4));
    workspace.FinalDriveCount = static_cast<std::int16_t>(Pick(1, 5));
    workspace.FinalDrivenCount = static_cast<std::int16_t>(Pick(1, 8));
    // Equal ratios and whole ones are frequent, so that errors meet the tolerances exactly.
    const bool whole = Chance(40);
    for (int p = 1; p <= workspace.PrimaryCount; ++p) {
      SetRatio(workspace.PrimaryTable[p], whole ? 1 : Pick(18, 24), whole ? Pick(2, 3) : Pick(58, 64));
    }
    for (int f = 1; f <= workspace.FinalDriveCount * workspace.FinalDrivenCount; ++f) {
      SetRatio(workspace.FinalTable[f], whole ? Pick(1, 4) : Pick(13, 18), whole ? 4 : Pick(33, 46));
    }
  }

  void MakeGears(Workspace& workspace) {
    workspace.GearRows = static_cast<std::int16_t>(Chance(3) ? Pick(11, 14) : Pick(Chance(3) ? 0 : 1, 10));
    const int holes = Chance(30) ? 0 : Pick(0, 60);
    const bool ordered = Chance(50);
    const bool toothless = Chance(6);
    for (int gear = 1; gear <= kGears; ++gear) {
      int drive = Pick(12, 16);
      for (int row = 1; row <= std::min<int>(workspace.GearRows, kGearRowLimit); ++row) {
        drive = ordered ? drive + Pick(0, 2) : Pick(12, 30);
        const bool hole = Chance(holes);
        const int driven = toothless && Chance(4) ? 0 : Pick(28, 32) - 2 * gear;
        const int teeth = toothless && Chance(20) ? 0 : drive;
        SetPair(workspace, gear, row, hole ? "99" : std::to_string(row), teeth, driven);
      }
    }
  }

  void MakeMatrix(Workspace& workspace) {
    const int forbidden = Chance(50) ? 0 : Pick(0, 70);
    for (int third = 1; third <= kGearRowLimit; ++third) {
      for (int fourth = 1; fourth <= kGearRowLimit; ++fourth) {
        workspace.M34Matrix(third, fourth) = static_cast<std::int16_t>(Chance(forbidden) ? 99 : Pick(-1, 1));
      }
    }
  }

  /// Mostly near a plan that the machine can make.
  void MakeRequests(Workspace& workspace) {
    const int p = Pick(1, std::max<int>(1, workspace.PrimaryCount));
    const int f = Pick(1, workspace.FinalDriveCount * workspace.FinalDrivenCount);
    const int spread = Chance(50) ? 0 : Pick(0, 8);
    const int manyTypes = Pick(1, 100);
    for (int gear = 1; gear <= kGears; ++gear) {
      const int row = Pick(1, std::max(1, std::min<int>(workspace.GearRows, kGearRowLimit)));
      double speed = 0;
      Guarded([&] { speed = plain::GearSpeed(workspace, p, f, gear, row); });
      const double request = std::round(speed) + Pick(-spread, spread);
      workspace.SpeedRequest[gear] = static_cast<float>(manyTypes <= 4 ? Pick(10, 300) : request);
      workspace.ToleranceMinus[gear] = static_cast<std::int16_t>(Chance(60) ? 1 : Pick(1, 21));
      workspace.TolerancePlus[gear] = static_cast<std::int16_t>(Chance(60) ? 1 : Pick(1, 21));
    }
  }

  std::mt19937 random_;
};

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
