// What has to be changed from the plan that is built in, counted by hand on NX4's parts.
#include "plan/present/part_changes.h"

#include "tests/calc/search_tables.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

/// Three rows of everything; pairs "g.r".
Workspace Machine() {
  Workspace workspace = HundredKmhMachine();
  workspace.PrimaryCount = 2;
  SetRatio(workspace.PrimaryTable[1], 20, 62);
  SetRatio(workspace.PrimaryTable[2], 19, 63);
  workspace.FinalDriveCount = 2;
  workspace.FinalDrivenCount = 2;
  SetRatio(workspace.FinalTable[1], 16, 37);
  SetRatio(workspace.FinalTable[2], 16, 39);
  SetRatio(workspace.FinalTable[3], 17, 37);
  SetRatio(workspace.FinalTable[4], 17, 39);
  workspace.GearRows = 3;
  for (int gear = 1; gear <= kGears; ++gear) {
    for (int row = 1; row <= 3; ++row) {
      SetPair(workspace, gear, row, std::to_string(gear) + "." + std::to_string(row), 10 + row, 20);
    }
  }
  return workspace;
}

PlanRows Rows(std::int16_t primary, std::int16_t final, std::int16_t first, std::int16_t third,
              std::int16_t fourth) {
  PlanRows rows;
  rows.primary = primary;
  rows.final = final;
  for (const int gear : {2, 5, 6}) rows.gear[gear] = 1;
  rows.gear[1] = first;
  rows.gear[3] = third;
  rows.gear[4] = fourth;
  return rows;
}

constexpr char kCombinations[] =
    "3,\"3.1\",4,\"4.1\",\"M-11\",\"C-3A\",\"C-4A\"\n"
    "3,\"3.2\",4,\"4.1\",\"M-21\",\"C-3B\",\"C-4A\"\n"
    "3,\"3.2\",4,\"4.2\",\"M-22\",\"C-3B\",\"C-4B\"\n"
    "3,\"3.3\",4,\"4.1\",\"M-11\",\"C-3C\",\"C-4A\"\n";

struct Changes : testing::Test {
  const Workspace machine = Machine();
  const PlanRows present = Rows(1, 4, 1, 1, 1);
  const PartChanges withFile{machine, present, ReadCombinationFile("X.CMB", kCombinations, false)};
  const PartChanges withoutFile{machine, present, std::nullopt};

  static int Sum(const PartCosts& costs, const PlanRows& rows) {
    int parts =
        costs.primary[rows.primary] + costs.final[rows.final] + costs.joint(rows.gear[3], rows.gear[4]);
    for (const int gear : {1, 2, 5, 6}) parts += costs.gear(gear, rows.gear[gear]);
    return parts;
  }
  /// The text, the parts, and that the costs by row say the same.
  static void Expect(const PartChanges& changes, const PlanRows& rows, const char* text, int parts) {
    EXPECT_EQ(ChangeText(changes.To(rows)), text);
    EXPECT_EQ(CountParts(changes.To(rows)), parts) << text;
    EXPECT_EQ(Sum(changes.Costs(), rows), parts) << text;
  }
};

TEST_F(Changes, NothingIsChangedForTheSamePlan) {
  Expect(withFile, present, "nothing", 0);
}

TEST_F(Changes, SprocketsCountOneByOneAndPairsAsPairs) {
  Expect(withFile, Rows(1, 3, 1, 1, 1), "final 17-37 for 17-39", 1);
  Expect(withFile, Rows(1, 2, 1, 1, 1), "final 16-39 for 17-39", 1);
  Expect(withFile, Rows(1, 1, 1, 1, 1), "final 16-37 for 17-39", 2);
  Expect(withFile, Rows(2, 4, 2, 1, 1), "primary 19-63 for 20-62; 1st 1.2 for 1.1", 2);
}

TEST_F(Changes, ThirdAndFourthCountByThePartsOfTheFile) {
  // 3rd alone: the joint part of the main shaft and its own of the counter shaft.
  Expect(withFile, Rows(1, 4, 1, 2, 1), "3rd 3.2 for 3.1", 2);
  // Both: the joint part, which serves both, and two of the counter shaft.
  Expect(withFile, Rows(1, 4, 1, 2, 2), "3rd 3.2 for 3.1; 4th 4.2 for 4.1", 3);
  // The joint part is the same one.
  Expect(withFile, Rows(1, 4, 1, 3, 1), "3rd 3.3 for 3.1", 1);
  // The file does not know this combination: pairs.
  Expect(withFile, Rows(1, 4, 1, 1, 2), "4th 4.2 for 4.1", 1);
}

TEST_F(Changes, WithoutAFileThirdAndFourthArePairs) {
  Expect(withoutFile, Rows(1, 4, 1, 2, 1), "3rd 3.2 for 3.1", 1);
  Expect(withoutFile, Rows(1, 4, 1, 2, 2), "3rd 3.2 for 3.1; 4th 4.2 for 4.1", 2);
}

}  // namespace
}  // namespace veldrin
