// The fields of a machine list, its kept oddities, and what damaged files leave behind.
#include "model/list_tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace veldrin {
namespace {

/// The parts of a small list, to be changed one by one. Gear g has the pairs "gA" and "gB".
struct List {
  std::string name = "TEST\n";
  std::string finalDrive = "FINAL-DRIVE\n14,15,99\n";
  std::string finalDriven = "FINAL-DRIVEN\n36,40,99\n";
  std::string gearRows = "GEAR-ROWS,2,PRIMARY\n";
  std::string primary = "20,60\n99\n";
  std::string headings = "free\nfree too\n";
  std::string gears =
      "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21\n"
      "1B,15,28,2B,18,27,3B,20,25,4B,25,27,5B,24,23,6B,27,24\n";
  std::string matrix = "M34-ARRAY\n0,0\n0,99\n";
  std::string keys;

  std::string Text() const {
    return name + finalDrive + finalDriven + gearRows + primary + headings + gears + matrix + keys;
  }
};

class ListTables : public testing::Test {
 protected:
  bool Read(const std::string& text) {
    TextReader reader(text);
    return ReadListTables(reader, workspace);
  }
  bool Read(const List& list) { return Read(list.Text()); }

  /// Reads a list with these key lines.
  void ReadKeys(const std::string& keys) {
    List list;
    list.keys = keys;
    ASSERT_TRUE(Read(list)) << keys;
  }

  static std::string FileText(const char* name) {
    const auto path = std::filesystem::path(VELDRIN_SHARE) / "LIST" / name;
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// A sample list without its tag.
  static std::string Sample(const char* name) {
    const std::string text = FileText(name);
    return text.substr(text.find('\n') + 1);
  }

  Workspace workspace;
};

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

TEST_F(ListTables, KeyLinesTakeTheirRanges) {
  struct Case {
    const char* line;
    float tyre;
    float check;
    int shift;
    int maxSpeed;
    int maxNe;
  };
  const Case untouched = {"", 1.9F, 10000, 13000, 300, 15000};
  const Case cases[] = {
      {"TYRE_L=1", 1, 10000, 13000, 300, 15000},
      {"TYRE_L=3", 3, 10000, 13000, 300, 15000},
      {"TYRE_L=3.01", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=0.99", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L= 1.95 ", 1.95F, 10000, 13000, 300, 15000},
      {"TYRE_L=1.9.5", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=two", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=1=2", 1.9F, 10000, 13000, 300, 15000},
      {"CHECK_NE=5000", 1.9F, 5000, 13000, 300, 15000},
      {"CHECK_NE=24000", 1.9F, 24000, 13000, 300, 15000},
      {"CHECK_NE=4999", 1.9F, 10000, 13000, 300, 15000},
      {"CHECK_NE=24001", 1.9F, 10000, 13000, 300, 15000},
      {"CHECK_NE=9500.5", 1.9F, 9500, 13000, 300, 15000},
      {"SHIFT_NE=5000", 1.9F, 10000, 5000, 300, 15000},
      {"SHIFT_NE=24000", 1.9F, 10000, 24000, 300, 15000},
      {"SHIFT_NE=24000.4", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT_NE=4999.6", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT_NE=12501.5", 1.9F, 10000, 12502, 300, 15000},
      {"SHIFT_NE=1.25e4", 1.9F, 10000, 12500, 300, 15000},
      {"SHIFT_NE=99999", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_SPEED=100", 1.9F, 10000, 13000, 100, 15000},
      {"MAX_SPEED=99", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_SPEED=341", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_SPEED=339.5", 1.9F, 10000, 13000, 340, 15000},
      {"MAX_SPEED=340", 1.9F, 10000, 13000, 340, 15000},
      {"MAX_SPEED=200.5", 1.9F, 10000, 13000, 200, 15000},
      {"MAX_NE=5000", 1.9F, 10000, 13000, 300, 5000},
      {"MAX_NE=24000", 1.9F, 10000, 13000, 300, 24000},
      {"MAX_NE=24001", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_NE=4999", 1.9F, 10000, 13000, 300, 15000},
      // Keys are compared exactly, the blank before the "=" included.
      {"SHIFT_NE =12000", 1.9F, 10000, 13000, 300, 15000},
      {" SHIFT_NE=12000", 1.9F, 10000, 13000, 300, 15000},
      {"shift_ne=12000", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT=12000", 1.9F, 10000, 13000, 300, 15000},
      {"=12000", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT_NE 12000", 1.9F, 10000, 13000, 300, 15000},
  };
  for (const Case& c : cases) {
    workspace.TyreLength = untouched.tyre;
    workspace.CheckNe = untouched.check;
    workspace.ShiftNe = static_cast<std::int16_t>(untouched.shift);
    workspace.MaxSpeed = static_cast<std::int16_t>(untouched.maxSpeed);
    workspace.MaxNe = static_cast<std::int16_t>(untouched.maxNe);
    ReadKeys(std::string(c.line) + "\n");
    EXPECT_EQ(workspace.TyreLength, c.tyre) << c.line;
    EXPECT_EQ(workspace.CheckNe, c.check) << c.line;
    EXPECT_EQ(workspace.ShiftNe, c.shift) << c.line;
    EXPECT_EQ(workspace.MaxSpeed, c.maxSpeed) << c.line;
    EXPECT_EQ(workspace.MaxNe, c.maxNe) << c.line;
  }
}

TEST_F(ListTables, LaterKeyLineOverridesAndOrderIsFree) {
  ReadKeys("MAX_NE=16000\nSHIFT_NE=12000\n\nsome remark\nSHIFT_NE=12500\nTYRE_L=2");
  EXPECT_EQ(workspace.MaxNe, 16000);
  EXPECT_EQ(workspace.ShiftNe, 12500);
  EXPECT_EQ(workspace.TyreLength, 2);
  ReadKeys("SHIFT_NE=12000\nSHIFT_NE=1\n");
  EXPECT_EQ(workspace.ShiftNe, 12000) << "a value that is refused overrides nothing";
}

TEST_F(ListTables, TyreIsReadWithTheSystemsSeparator) {
  workspace.DecimalSep = ",";
  workspace.TyreLength = 1.9F;
  ReadKeys("TYRE_L=2,05\n");
  EXPECT_EQ(workspace.TyreLength, 2.05F);
  ReadKeys("TYRE_L=1.95\n");
  EXPECT_EQ(workspace.TyreLength, 1.9F) << "a point is no separator here";
}

TEST_F(ListTables, KeysGoBackWithTheNextListButForWhatWasChangedSince) {
  workspace.TyreLength = 1.9F;
  workspace.CheckNe = 10000;
  workspace.ShiftNe = 13000;
  workspace.MaxSpeed = 340;
  workspace.MaxNe = 15000;
  const std::string all = "TYRE_L=2\nCHECK_NE=9000\nSHIFT_NE=12000\nMAX_SPEED=200\nMAX_NE=14000\n";
  ReadKeys(all);
  ReadKeys(all);
  ReadKeys("");
  EXPECT_EQ(workspace.TyreLength, 1.9F);
  EXPECT_EQ(workspace.CheckNe, 10000);
  EXPECT_EQ(workspace.ShiftNe, 13000);
  EXPECT_EQ(workspace.MaxSpeed, 340);
  EXPECT_EQ(workspace.MaxNe, 15000);
  ReadKeys(all + "TYRE_L=2.5\n");
  EXPECT_EQ(workspace.TyreLength, 2.5F);
  workspace.CheckNe = 8000;
  workspace.MaxNe = 15500;
  ReadKeys("CHECK_NE=7000\n");
  EXPECT_EQ(workspace.TyreLength, 1.9F);
  EXPECT_EQ(workspace.CheckNe, 7000);
  EXPECT_EQ(workspace.ShiftNe, 13000);
  EXPECT_EQ(workspace.MaxNe, 15500);
  ReadKeys("");
  EXPECT_EQ(workspace.CheckNe, 8000) << "what the user had made of the first key";
}

TEST_F(ListTables, ARefusedListLeavesTheKeysOfTheLastOne) {
  workspace.TyreLength = 1.9F;
  ReadKeys("TYRE_L=2\n");
  EXPECT_FALSE(Read("NX4\nFINAL DRIVE\n"));
  EXPECT_EQ(workspace.TyreLength, 2);
  ReadKeys("");
  EXPECT_EQ(workspace.TyreLength, 1.9F);
}

TEST_F(ListTables, RestOfTheMatrixLineIsALineOfItsOwn) {
  List list;
  list.matrix = "M34-ARRAY\n0,0,0,0,SHIFT_NE=12000\n";
  workspace.ShiftNe = 13000;
  ASSERT_TRUE(Read(list));
  EXPECT_EQ(workspace.ShiftNe, 12000);
}

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

/// Reads a damaged list and everything behind it. Only that it comes to an end without a fault counts.
void ReadDamaged(const std::string& text, Workspace& workspace) {
  TextReader reader(text);
  ReadListTables(reader, workspace);
  BuildFinalTable(workspace);
  SortTables(workspace);
}

TEST_F(ListTables, EveryBeginningOfTheSampleListsIsReadWithoutAFault) {
  for (const char* name : {"NX4.RAT", "VT2.RAT"}) {
    const std::string text = Sample(name);
    for (std::size_t size = 0; size <= text.size(); ++size) {
      Workspace fresh;
      EXPECT_NO_THROW(ReadDamaged(text.substr(0, size), fresh)) << name << " cut at " << size;
      EXPECT_NO_THROW(ReadDamaged(text.substr(0, size), workspace)) << name << " cut at " << size;
    }
  }
}

TEST_F(ListTables, EveryScrambledListIsReadWithoutAFault) {
  std::mt19937 any(5);
  const std::string texts[] = {Sample("NX4.RAT"), Sample("VT2.RAT")};
  const std::string characters = "0123456789,\"\r\n-=. A\t\x82\xFF";
  for (int round = 0; round < 3000; ++round) {
    std::string text = texts[round % 2];
    for (unsigned changes = 1 + any() % 8; changes > 0; --changes) {
      const std::size_t at = any() % text.size();
      switch (any() % 3) {
        case 0:
          text[at] = characters[any() % characters.size()];
          break;
        case 1:
          text.erase(at, 1 + any() % 30);
          break;
        default:
          text.insert(at, 1, characters[any() % characters.size()]);
          break;
      }
    }
    ASSERT_NO_THROW(ReadDamaged(text, workspace)) << text;
  }
}

}  // namespace
}  // namespace veldrin
