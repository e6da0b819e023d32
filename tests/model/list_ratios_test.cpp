// The ratios that are made of a list's teeth, and their order.
#include "model/list_tables.h"
#include "tests/model/small_list.h"

namespace veldrin {
namespace {

TEST_F(ListTables, FinalTableIsEveryDriveWithEveryDriven) {
  ASSERT_TRUE(Read(List()));
  BuildFinalTable(workspace);
  EXPECT_EQ(FinalRowCount(workspace), 4);
  EXPECT_EQ(workspace.FinalTable[1].Text, "14-36");
  EXPECT_EQ(workspace.FinalTable[2].Text, "14-40");
  EXPECT_EQ(workspace.FinalTable[3].Text, "15-36");
  EXPECT_EQ(workspace.FinalTable[4].Text, "15-40");
  EXPECT_EQ(workspace.FinalTable[4].Ratio, 15.0 / 40);
  SortTables(workspace);
  EXPECT_EQ(workspace.FinalTable[1].Text, "14-40");
  EXPECT_EQ(workspace.FinalTable[2].Text, "15-40");
  EXPECT_EQ(workspace.FinalTable[3].Text, "14-36");
  EXPECT_EQ(workspace.FinalTable[4].Text, "15-36");
}

TEST_F(ListTables, FullListsMake200FinalRows) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n11,12,13,14,15,16,17,18,19,20\n";
  list.finalDriven = "FINAL-DRIVEN\n31,32,33,34,35,36,37,38,39,40,41,42,43,44,45,46,47,48,49,50\n";
  ASSERT_TRUE(Read(list));
  BuildFinalTable(workspace);
  EXPECT_EQ(workspace.FinalTable[200].Text, "20-50");
  SortTables(workspace);
  EXPECT_EQ(workspace.FinalTable[1].Text, "11-50");
  EXPECT_EQ(workspace.FinalTable[200].Text, "20-31");
  for (int row = 2; row <= 200; ++row) {
    EXPECT_LE(static_cast<float>(workspace.FinalTable[row - 1].Ratio),
              static_cast<float>(workspace.FinalTable[row].Ratio));
  }
}

TEST_F(ListTables, ThreeDigitTeethAreCutInTheTextAndNotInTheRatio) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n13,99\n";
  list.finalDriven = "FINAL-DRIVEN\n100,99\n";
  ASSERT_TRUE(Read(list));
  BuildFinalTable(workspace);
  EXPECT_EQ(workspace.FinalTable[1].Text, "13-10");
  EXPECT_EQ(workspace.FinalTable[1].Ratio, 0.13);
}

TEST_F(ListTables, DrivenSizeOf0LeavesTheRatioAt0) {
  List list;
  list.finalDriven = "FINAL-DRIVEN\n0,40,99\n";
  workspace.FinalTable[1].Ratio = 0.75;
  ASSERT_TRUE(Read(list));
  BuildFinalTable(workspace);
  EXPECT_EQ(workspace.FinalTable[1].Text, "14-0 ");
  EXPECT_EQ(workspace.FinalTable[1].Ratio, 0);
  EXPECT_EQ(workspace.FinalTable[3].Ratio, 0);
}

TEST_F(ListTables, SortKeepsTheTextsOfFinalRows7And1) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n14,15,16,17,99\n";
  ASSERT_TRUE(Read(list));
  BuildFinalTable(workspace);
  SortTables(workspace);
  // 14-40 .350, 15-40 .375, 14-36 .389, 16-40 .400, 15-36 .417, 17-40 .425, 16-36 .444, 17-36 .472
  EXPECT_EQ(workspace.FinalRow1Text, "14-40");
  EXPECT_EQ(workspace.FinalRow7Text, "16-36");
}

TEST_F(ListTables, PrimaryRowsAreSortedToo) {
  List list;
  list.primary = "20,62\n19,63\n21,61\n20,63\n99\n";
  ASSERT_TRUE(Read(list));
  BuildFinalTable(workspace);
  SortTables(workspace);
  EXPECT_EQ(workspace.PrimaryTable[1].Text, "19-63");
  EXPECT_EQ(workspace.PrimaryTable[2].Text, "20-63");
  EXPECT_EQ(workspace.PrimaryTable[3].Text, "20-62");
  EXPECT_EQ(workspace.PrimaryTable[4].Text, "21-61");
}

TEST_F(ListTables, ClearingForgetsTheMachineButNotItsCounts) {
  ASSERT_TRUE(Read(List()));
  BuildFinalTable(workspace);
  workspace.SpeedNow[1] = 5;
  workspace.SpeedRequest[1] = 5;
  workspace.SpeedBaseline[1] = 5;
  ClearMachine(workspace);
  EXPECT_EQ(workspace.MachineKey, "");
  EXPECT_EQ(workspace.MachineName, "TEST");
  EXPECT_EQ(workspace.FinalTable[1].Text, "     ");
  EXPECT_EQ(workspace.PrimaryTable[1].Ratio, 0);
  EXPECT_EQ(workspace.GearTable(1, 1), "");
  EXPECT_EQ(workspace.M34Matrix(2, 2), 0);
  EXPECT_EQ(workspace.FinalDriveList[1], 0);
  EXPECT_EQ(workspace.SpeedNow[1] + workspace.SpeedRequest[1] + workspace.SpeedBaseline[1], 0);
  EXPECT_EQ(workspace.PrimaryCount, 1);
  EXPECT_EQ(workspace.GearRows, 2);
}

}  // namespace
}  // namespace veldrin
