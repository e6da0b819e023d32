#include "model/gear_pairs.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

/// Rows "1" to "3" in every gear, with the plan at row 3.
Workspace ThreeRows() {
  Workspace workspace;
  workspace.GearRows = 3;
  for (int gear = 1; gear <= kGears; ++gear) {
    for (int row = 1; row <= 3; ++row) workspace.GearTable(gear, row) = std::to_string(row);
    workspace.PlanIndex[gear] = 3;
  }
  return workspace;
}

std::string Found(const std::string& line) {
  Workspace workspace = ThreeRows();
  FindGearPairs(workspace, line);
  std::string rows;
  for (int gear = 1; gear <= kGears; ++gear) rows += std::to_string(workspace.PlanIndex[gear]);
  return rows;
}

TEST(FindGearPairs, TakesTheRowOfEachText) {
  EXPECT_EQ(Found("1-2-3-2-1-2"), "123212");
}

TEST(FindGearPairs, AnUnknownTextKeepsTheRow) {
  EXPECT_EQ(Found("1-x--2-1-1"), "133211");
  EXPECT_EQ(Found("1-2"), "123333");
}

TEST(FindGearPairs, TheSixthEndsAtItsHyphen) {
  EXPECT_EQ(Found("1-1-1-1-1-2-1"), "111112");
}

TEST(FindGearPairs, OfEqualTextsTheFirstRowIsTaken) {
  Workspace workspace = ThreeRows();
  workspace.GearTable(1, 2) = "1";
  FindGearPairs(workspace, "1-1-1-1-1-1");
  EXPECT_EQ(workspace.PlanIndex[1], 1);
}

}  // namespace
}  // namespace veldrin
