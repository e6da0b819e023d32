// What the program ignores, takes in its own way or will do badly with: a warning with its line each.
#include "tests/plan/damaged_list.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(CheckList, KeyLinesThatTheProgramIgnores) {
  Expect({
      {Put(17, "a remark without the sign"), {}},
      {Put(17, ""), {}},
      {Put(17, "TYRE_L= 3 "), {}},
      {Put(17, "TYRE_L=3.01"), {"w17: TYRE_L: 3.01 is out of range, 1 to 3"}},
      {Put(17, "TYRE_L=1,95"), {"w17: TYRE_L: \"1,95\" is no number"}},
      {Put(17, "TYRE_L="), {"w17: TYRE_L: \"\" is no number"}},
      {Put(17, "TYRE_L =1.95"), {"w17: unknown key \"TYRE_L \"; TYRE_L has capitals and no blank beside it"}},
      {Put(17, " tyre_l=1.95"), {"w17: unknown key \" tyre_l\"; TYRE_L has capitals and no blank beside it"}},
      {Put(17, "=1.95"), {"w17: unknown key \"\""}},
      {Put(17, "TYRE_L 1.95"), {"w17: \"TYRE_L 1.95\" has no \"=\" and is ignored"}},
      {Put(17, "shift_ne: 12000"), {"w17: \"shift_ne: 12000\" has no \"=\" and is ignored"}},
      {Put(17, "TYRE=1.95"), {"w17: unknown key \"TYRE\""}},
      {Put(17, "MAX_SPEED=340"), {}},
      {Put(17, "MAX_SPEED=341"), {"w17: MAX_SPEED: 341 is out of range, 100 to 340"}},
      {Put(18, "SHIFT_NE=24000.4"), {"w18: SHIFT_NE: 24000.4 is out of range, 5000 to 24000"}},
      {Put(18, "CHECK_NE=4999"), {"w18: CHECK_NE: 4999 is out of range, 5000 to 24000"}},
      {Put(18, "MAX_NE=x"), {"w18: MAX_NE: \"x\" is no number"}},
  });
}

TEST(CheckList, KeyLinesThatTheProgramTakesInItsOwnWay) {
  Expect({
      {Put(18, "SHIFT_NE=12500.5"), {"w18: SHIFT_NE: 12500.5 is not a whole number; it is read as 12500"}},
      {Put(18, "SHIFT_NE=12501.5"), {"w18: SHIFT_NE: 12501.5 is not a whole number; it is read as 12502"}},
      {Put(17, "SHIFT_NE=9000"), {"w18: SHIFT_NE stands in line 17 already; the later line holds"}},
      {Put(17, "SHIFT_NE=900"), {"w17: SHIFT_NE: 900 is out of range, 5000 to 24000"}},
      {Insert(18, "SHIFT_NE=9000\nSHIFT_NE=9500"),
       {"w19: SHIFT_NE stands in line 18 already; the later line holds",
        "w20: SHIFT_NE stands in line 19 already; the later line holds"}},
  });
}

TEST(CheckList, RevolutionsBeyondTheChart) {
  Expect({
      {Put(18, "SHIFT_NE=15000"), {}},
      {Put(18, "SHIFT_NE=15001"), {"w18: SHIFT_NE is 15001, beyond the chart: MAX_NE is 15000 by default"}},
      {Insert(18, "MAX_NE=12500"), {}},
      {Insert(18, "MAX_NE=12499"), {"w19: SHIFT_NE is 12500, beyond the chart: MAX_NE is 12499"}},
      {Insert(19, "MAX_NE=12499"), {"w18: SHIFT_NE is 12500, beyond the chart: MAX_NE is 12499"}},
      {Insert(19, "MAX_NE=12499\nMAX_NE=13000"),
       {"w20: MAX_NE stands in line 19 already; the later line holds"}},
      {Put(18, "MAX_NE=12999"), {"w18: SHIFT_NE is 13000 by default, beyond the chart: MAX_NE is 12999"}},
      {Put(18, "CHECK_NE=15001"), {"w18: CHECK_NE is 15001, beyond the chart: MAX_NE is 15000 by default"}},
      {Put(18, "MAX_NE=9000"),
       {"w18: SHIFT_NE is 13000 by default, beyond the chart: MAX_NE is 9000",
        "w18: CHECK_NE is 10000 by default, beyond the chart: MAX_NE is 9000"}},
  });
}

TEST(CheckList, SpeedsBeyondTheChart) {
  // 20-60, 12500 rev/min, 1.95 m: 487.5 km/h times the final's 14-40 and 23/21 make 186.9 km/h.
  Expect({
      {Insert(18, "MAX_SPEED=187"), {}},
      {Insert(18, "MAX_SPEED=186"),
       {"w18: the first plan runs 187 km/h, beyond the chart: MAX_SPEED is 186"}},
  });
  const std::string plain = std::string(kPlainList) + "MAX_SPEED=";
  EXPECT_EQ(Remarks(plain + "140\n", "PLAIN"), Lines{}) << "140 km/h end at the top";
  EXPECT_EQ(Remarks(plain + "139\n", "PLAIN"),
            Lines{"w17: the first plan runs 140 km/h, beyond the chart: MAX_SPEED is 139"});
  SampleList empty;
  empty[12] = "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,99,0,0";
  empty[17] = "MAX_SPEED=100";
  ASSERT_EQ(Remarks(empty.Text()).size(), 1U);
  EXPECT_EQ(Remarks(empty.Text())[0].substr(0, 12), "w13: gear 6 ")
      << "a plan on an empty place has no speed";
}

/// The remarks of the sample whose machine, and file, have this name.
Lines RemarksNamed(const std::string& name) {
  SampleList list;
  list[2] = '"' + name + '"';
  return Remarks(list.Text(), name);
}

TEST(CheckList, NamesThatPlanFilesCannotBear) {
  EXPECT_EQ(RemarksNamed("RS 125"), Lines{});
  EXPECT_EQ(RemarksNamed("NX.4"),
            Lines{"w2: the name \"NX.4\" holds a \".\", where plan files end it, so they "
                  "are not opened again"});
  EXPECT_EQ(RemarksNamed("NX,4"),
            Lines{"w2: the name \"NX,4\" holds a \",\", where plan files end it, so they "
                  "are not opened again"});
  EXPECT_EQ(RemarksNamed("NX\n4"),
            Lines{"w2: the name \"NX?4\" holds a line end, where plan files end it, so "
                  "they are not opened again"});
  EXPECT_EQ(RemarksNamed("NX?"), Lines{"w2: the name \"NX?\" holds a \"?\", so plan files cannot be saved"});
  EXPECT_EQ(RemarksNamed("NX;4"),
            Lines{"w2: the name \"NX;4\" holds a \";\", so the chooser does not find plan files"});
  SampleList list;
  EXPECT_EQ(Remarks(list.Text(), "TES"),
            Lines{"w2: the name \"TEST\" differs from the file's, so plan files will not find it"})
      << "a name longer than the file's";
}

TEST(CheckList, PairsThatPlanFilesCannotName) {
  Expect({
      {Put(13, "\"1\nB\",15,28,99,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"w13: gear 1, row 2: \"1?B\" holds a line end, so plan files lose the pair"}},
  });
}

TEST(CheckList, PlansThatBeginOnAnEmptyPlace) {
  Expect({
      {Put(12, "99,99,99,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21"),
       {"w13: gear 1 has its first pair in the last row: the first plan has the empty place of row 1, "
        "\"99\", and "
        "counts with its 99 over 99 teeth"}},
      {Put(12, "99,1,0,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21"),
       {"w13: gear 1 has its first pair in the last row: the first plan has the empty place of row 1, "
        "\"99\", and "
        "counts with its 1 over 0 teeth, which ends the program"}},
      {Put(12, "99,0,1,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21"),
       {"w13: gear 1 has its first pair in the last row: the first plan has the empty place of row 1, "
        "\"99\", and "
        "counts with its 0 over 1 teeth, which ends the program"}},
      {Put(12, "99,1,1,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21"),
       {"w13: gear 1 has its first pair in the last row: the first plan has the empty place of row 1, "
        "\"99\", and "
        "counts with its 1 over 1 teeth"}},
      {Put(12, "1A,14,29,99,0,0,3A,19,24,4A,22,24,5A,26,25,6A,23,21"),
       {"w12: gear 2 has no pair in any row: no search finds a plan, and the first plan has the empty place "
        "of row "
        "1, \"99\", and counts with its 0 over 0 teeth, which ends the program"}},
  });
}

/// The sample with a third gear row.
SampleList ThreeRows() {
  SampleList list;
  list[7] = "GEAR-ROWS,3,PRIMARY";
  list.Insert(14, "1C,16,29,2C,18,27,3C,20,24,4C,25,26,5C,21,20,6C,25,22");
  list[16] = "0,0,0";
  list[17] = "0,0,0\n0,0,0";
  return list;
}

TEST(CheckList, TheFirstPairMayStandInARowBeforeTheLast) {
  SampleList list = ThreeRows();
  EXPECT_EQ(Remarks(list.Text()), Lines{});
  list[12] = "99,99,99,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21";
  EXPECT_EQ(Remarks(list.Text()), Lines{});
}

TEST(CheckList, PairsOutOfTheOrderOfTheirRatios) {
  SampleList list = ThreeRows();
  // 3rd gear: 19/24 is 0.79, 20/25 is 0.8, 20/24 is 0.83.
  list[14] = "1C,16,29,2C,18,27,3C,18,24,4C,25,26,5C,21,20,6C,25,22";
  EXPECT_EQ(
      Remarks(list.Text()),
      Lines{
          "w14: gear 3, row 3: not in the order of the ratios, so a search may pass over the nearest pair"});
  list[14] = "1C\n16,29\n2C,18,27,3C,18,24,4C,25,26,5C,21,20,6C,25,22";
  EXPECT_EQ(Remarks(list.Text()).at(0).substr(0, 20), "w14: gear 3, row 3: ")
      << "a row begins with its first cell";
  list[14] = "1C,16,29,2C,18,27,3C,18,24,4C,25,26,5C,21,20,6C,25,22";
  list[12] = "1A,14,29,2A,17,26,3A,21,24,4A,22,24,5A,26,25,6A,23,21";
  EXPECT_EQ(Remarks(list.Text()), Lines{}) << "falling is an order as well";
  list[14] = "1C,16,29,2C,18,27,3C,40,50,4C,25,26,5C,21,20,6C,25,22";
  EXPECT_EQ(Remarks(list.Text()), Lines{}) << "and equal ones are in order";
  list[12] = "1A,14,29,2A,17,26,3A,40,50,4A,22,24,5A,26,25,6A,23,21";
  list[14] = "1C,16,29,2C,18,27,3C,20,24,4C,25,26,5C,21,20,6C,25,22";
  EXPECT_EQ(Remarks(list.Text()), Lines{}) << "the first ones as well";
}

TEST(CheckList, AMatrixThatForbidsTooMuch) {
  Expect({
      {Put(15, "0,99"), {}},
      {Put(15, "99,0"),
       {"w14: the first plan has rows 1 and 1 of 3rd and 4th gear, which the matrix forbids, and does not "
        "show it"}},
      {Put(15, "99,99\n99,99"),
       {"w14: the matrix forbids every pair of 3rd and 4th gear, so no search finds a plan",
        "w17: the matrix goes on; 4 numbers are needed for 2 gear rows, the others are ignored"}},
  });
  SampleList list;
  list[13] = "1B,15,28,99,99,99,99,99,99,4B,25,27,5B,24,23,6B,27,24";
  list[15] = "99,99";
  list[16] = "0,0";
  EXPECT_EQ(Remarks(list.Text()),
            Lines{"w14: the matrix forbids every pair of 3rd and 4th gear, so no search finds a plan"})
      << "the second row of the 3rd gear is empty";
}

}  // namespace
}  // namespace veldrin
