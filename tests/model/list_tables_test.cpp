// The fields of a machine list, and its kept oddities.
#include "model/list_tables.h"

#include "tests/model/small_list.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(ListTables, ReadsEveryField) {
  ASSERT_TRUE(Read(List()));
  EXPECT_EQ(workspace.MachineName, "TEST");
  EXPECT_EQ(workspace.MachineKey, "test");
  EXPECT_EQ(workspace.FinalDriveCount, 2);
  EXPECT_EQ(workspace.FinalDriveList[2], 15);
  EXPECT_EQ(workspace.FinalDrivenCount, 2);
  EXPECT_EQ(workspace.FinalDrivenList[1], 36);
  EXPECT_EQ(workspace.GearRows, 2);
  EXPECT_EQ(workspace.PrimaryCount, 1);
  EXPECT_EQ(workspace.PrimaryTable[1].Text, "20-60");
  EXPECT_EQ(workspace.PrimaryTable[1].Ratio, 20.0 / 60);
  EXPECT_EQ(workspace.PrimaryTable[2].Text, "     ") << "a row that nothing filled";
  EXPECT_EQ(workspace.GearTable(3, 2), "3B");
  EXPECT_EQ(workspace.GearDriveTeeth(3, 2), 20);
  EXPECT_EQ(workspace.GearDrivenTeeth(3, 2), 25);
  EXPECT_EQ(workspace.M34Matrix(2, 2), 99);
  EXPECT_EQ(workspace.M34Matrix(2, 1), 0);
}

TEST_F(ListTables, ReadsTheSampleListsWithEveryKindOfLineEnd) {
  for (const char* name : {"NX4.RAT", "VT2.RAT"}) {
    std::string text = Sample(name);
    for (const char* lineEnd : {"\r\n", "\n", "\r"}) {
      std::string lines;
      for (const char c : text) {
        if (c == '\r') continue;
        lines += c == '\n' ? std::string(lineEnd) : std::string(1, c);
      }
      workspace = Workspace();
      EXPECT_TRUE(Read(lines)) << name;
      EXPECT_EQ(workspace.MachineName + ".RAT", name);
    }
  }
  EXPECT_EQ(workspace.GearRows, 4);
  EXPECT_EQ(workspace.FinalDriveCount, 3);
  EXPECT_EQ(workspace.FinalDrivenCount, 9);
  EXPECT_EQ(workspace.PrimaryCount, 2);
  EXPECT_EQ(workspace.GearTable(6, 4), "6D");
  EXPECT_EQ(workspace.M34Matrix(4, 1), 99);
  EXPECT_EQ(workspace.TyreLength, 1.95F);
  EXPECT_EQ(workspace.ShiftNe, 12500);
  EXPECT_EQ(workspace.CheckNe, 9500);
  EXPECT_EQ(workspace.MaxSpeed, 300);
  EXPECT_EQ(workspace.MaxNe, 15000);
}

TEST_F(ListTables, TenDriveSizesEndWithoutAMark) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n11,12,13,14,15,16,17,18,19,20\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.FinalDriveCount, 10);
  list.finalDrive = "FINAL-DRIVE\n11,12,13,14,15,16,17,18,19,20,99\n";
  EXPECT_FALSE(Read(list)) << "the 99 is taken for the keyword";
}

TEST_F(ListTables, TwentyDrivenSizesEndWithoutAMark) {
  List list;
  const std::string sizes = "31,32,33,34,35,36,37,38,39,40,41,42,43,44,45,46,47,48,49,50";
  list.finalDriven = "FINAL-DRIVEN\n" + sizes + "\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.FinalDrivenCount, 20);
  EXPECT_EQ(workspace.FinalDrivenList[20], 50);
  list.finalDriven = "FINAL-DRIVEN\n" + sizes + ",99\n";
  EXPECT_FALSE(Read(list)) << "the 99 is taken for the free word, so the rows for the keyword";
}

TEST_F(ListTables, SizesOnOnePerLineAreAsGood) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n14\n15\n99\n";
  list.gears =
      "1A\n14\n29\n2A\n17\n26\n3A\n19\n24\n4A\n22\n24\n5A\n26\n25\n6A\n23\n21\n"
      "1B\n15\n28\n2B\n18\n27\n3B\n20\n25\n4B\n25\n27\n5B\n24\n23\n6B\n27\n24\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.FinalDriveCount, 2);
  EXPECT_EQ(workspace.GearTable(6, 2), "6B");
}

TEST_F(ListTables, EmptyListsOfSizesAreRead) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n99\n";
  list.finalDriven = "FINAL-DRIVEN\n99\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(FinalRowCount(workspace), 0);
}

TEST_F(ListTables, EightPrimaryPairsTakeOneMoreField) {
  List list;
  list.primary = "21,61\n22,61\n23,61\n24,61\n25,61\n26,61\n27,61\n28,61\n99\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.PrimaryCount, 8);
  EXPECT_EQ(workspace.PrimaryTable[8].Text, "28-61");
}

TEST_F(ListTables, EightPrimaryPairsWithoutAMarkEatTheFirstHeadingsFirstField) {
  List list;
  list.primary = "21,61\n22,61\n23,61\n24,61\n25,61\n26,61\n27,61\n28,61\n";
  list.headings = "eaten, first line\nsecond line\n";
  ASSERT_TRUE(Read(list)) << "the rest of that line is the first of the two";
  EXPECT_EQ(workspace.PrimaryCount, 8);
  EXPECT_EQ(workspace.GearTable(1, 1), "1A");
  list.headings = "eaten whole\nsecond line\n";
  Read(list);
  EXPECT_EQ(workspace.GearTable(1, 1), "1B") << "the first gear row is skipped as the second line";
}

TEST_F(ListTables, FirstPrimaryNumberOf99GivesNone) {
  List list;
  list.primary = "99\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.PrimaryCount, 0);
  EXPECT_EQ(workspace.GearTable(1, 1), "1A");
}

TEST_F(ListTables, TextBehindTheEndMarkIsTheFirstSkippedLine) {
  List list;
  list.primary = "20,60\n99, the first of the two\n";
  list.headings = "the second\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.GearTable(1, 1), "1A");
}

TEST_F(ListTables, PrimaryWithoutDrivenTeethKeepsItsRatio) {
  List list;
  list.primary = "20,0\n21,60\n99\n";
  workspace.PrimaryTable[1].Ratio = 0.5;
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.PrimaryCount, 2);
  EXPECT_EQ(workspace.PrimaryTable[1].Text, "20-0 ");
  EXPECT_EQ(workspace.PrimaryTable[1].Ratio, 0.5);
}

TEST_F(ListTables, KeywordsAreComparedExactly) {
  const auto fails = [this](const List& list) { return !Read(list); };
  List list;
  list.finalDrive = "Final-Drive\n14,99\n";
  EXPECT_TRUE(fails(list));
  list = List();
  list.finalDriven = "FINAL-DRIVE\n36,99\n";
  EXPECT_TRUE(fails(list));
  list = List();
  list.gearRows = "GEAR-ROWS,2,PRIMARIES\n";
  EXPECT_TRUE(fails(list));
  list = List();
  list.matrix = "M34\n0,0\n0,0\n";
  EXPECT_TRUE(fails(list));
  list = List();
  list.gearRows = "any word,2, \"PRIMARY\" \n";
  EXPECT_FALSE(fails(list));
}

TEST_F(ListTables, WhatWasReadBeforeAWrongKeywordStays) {
  List list;
  list.gearRows = "GEAR-ROWS,2,SECONDARY\n";
  workspace.PrimaryCount = 7;
  EXPECT_FALSE(Read(list));
  EXPECT_EQ(workspace.MachineKey, "test");
  EXPECT_EQ(workspace.FinalDrivenCount, 2);
  EXPECT_EQ(workspace.PrimaryCount, 7);
}

TEST_F(ListTables, FieldThatIsNoNumberIsConsumedAndKeepsTheValue) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n14,x,16,99\n";
  workspace.FinalDriveList[2] = 77;
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.FinalDriveCount, 3);
  EXPECT_EQ(workspace.FinalDriveList[2], 77);
  EXPECT_EQ(workspace.FinalDriveList[3], 16);
}

TEST_F(ListTables, NumbersBeyond16BitsKeepTheValueAndOthersAreRounded) {
  List list;
  list.finalDrive = "FINAL-DRIVE\n14.5,40000,15.5,99\n";
  workspace.FinalDriveList[2] = 7;
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.FinalDriveList[1], 14);
  EXPECT_EQ(workspace.FinalDriveList[2], 7);
  EXPECT_EQ(workspace.FinalDriveList[3], 16);
}

TEST_F(ListTables, OneGearRowLeavesTheFirstRowAt1) {
  List list;
  list.gearRows = "GEAR-ROWS,1,PRIMARY\n";
  list.gears = "99,99,99,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21\n";
  list.matrix = "M34-ARRAY\n0\n";
  ASSERT_TRUE(Read(list));
  for (int gear = 1; gear <= kGears; ++gear) {
    EXPECT_EQ(workspace.GearFirstRow[gear], 1);
    EXPECT_EQ(workspace.PlanIndex[gear], 1);
  }
}

TEST_F(ListTables, FirstRowIsThatOfTheFirstPair) {
  List list;
  list.gearRows = "GEAR-ROWS,3,PRIMARY\n";
  // Gear 1 begins in row 1, gear 2 in row 2, gear 3 in the last row, gear 4 has no pair at all.
  list.gears =
      "1A,14,29,99,99,99,99,99,99,99,99,99,5A,26,25,6A,23,21\n"
      "99,99,99,2B,18,27,99,99,99,99,99,99,5B,24,23,6B,27,24\n"
      "1C,15,28,2C,18,26,3C,20,25,99,99,99,5C,24,22,6C,27,23\n";
  list.matrix = "M34-ARRAY\n0,0,0\n0,0,0\n0,0,0\n";
  for (int gear = 1; gear <= kGears; ++gear) workspace.PlanIndex[gear] = 9;
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.GearFirstRow[1], 1);
  EXPECT_EQ(workspace.PlanIndex[1], 1);
  EXPECT_EQ(workspace.GearFirstRow[2], 2);
  EXPECT_EQ(workspace.PlanIndex[2], 2);
  EXPECT_EQ(workspace.GearFirstRow[3], 3);
  EXPECT_EQ(workspace.PlanIndex[3], 1) << "a first pair in the very last row is no find";
  EXPECT_EQ(workspace.GearFirstRow[4], 3);
  EXPECT_EQ(workspace.PlanIndex[4], 1);
}

TEST_F(ListTables, MoreThanTenGearRowsPassWhenTheFileHoldsTen) {
  List list;
  list.gearRows = "GEAR-ROWS,12,PRIMARY\n";
  list.gears.clear();
  for (int row = 0; row < 10; ++row) list.gears += "A,14,29,A,17,26,A,19,24,A,22,24,A,26,25,A,23,21\n";
  list.matrix = "M34-ARRAY\n";
  for (int row = 0; row < 10; ++row) list.matrix += "1,2,3,4,5,6,7,8,9,10\n";
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.GearRows, 12);
  EXPECT_EQ(workspace.GearTable(6, 10), "A");
  list.gears += "A,14,29,A,17,26,A,19,24,A,22,24,A,26,25,A,23,21\n";
  EXPECT_FALSE(Read(list)) << "the eleventh row stands where the keyword is looked for";
}

TEST_F(ListTables, NoGearRowsOrLessReadNone) {
  List list;
  list.gears = "";
  list.matrix = "M34-ARRAY\n";
  for (const char* rows : {"0", "-1", "-32768"}) {
    list.gearRows = std::string("GEAR-ROWS,") + rows + ",PRIMARY\n";
    ASSERT_TRUE(Read(list)) << rows;
    EXPECT_EQ(workspace.GearTable(1, 1), "");
  }
  EXPECT_EQ(workspace.GearFirstRow[1], -32768);
}

TEST_F(ListTables, RestOfTheMatrixLineIsALineOfItsOwn) {
  List list;
  list.matrix = "M34-ARRAY\n0,0,0,0,SHIFT_NE=12000\n";
  workspace.ShiftNe = 13000;
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.ShiftNe, 12000);
}

}  // namespace
}  // namespace veldrin
