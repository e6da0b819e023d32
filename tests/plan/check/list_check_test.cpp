// The strict reading: every fault with its line, one line a case. What the program takes is a warning.
#include "plan/check/list_check.h"

#include "tests/plan/damaged_list.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(CheckList, SampleIsFine) {
  Expect({{[](SampleList&) {}, {}}});
}

TEST(CheckList, TagAndName) {
  Expect({
      {Put(1, "LIST of a machine"), {}},
      {Put(1, "\"LIST\""), {}},
      {Put(1, "list"), {"1: no machine list: it begins with \"list\" and not with LIST"}},
      {Put(1, "FROM:NX4.RAT"), {"1: no machine list: it begins with \"FROM:NX4.RAT\" and not with LIST"}},
      {Put(2, "test"), {}},
      {Put(2, "TEST2"), {"w2: the name \"TEST2\" differs from the file's, so plan files will not find it"}},
      {Put(2, ""), {"2: the machine's name is missing"}},
      {Erase(2), {"2: the machine's name is missing"}},
      {Put(2, "\"TEST\" 2"), {"w2: text behind the closing quotation mark of \"TEST\" is ignored"}},
  });
}

TEST(CheckList, Keywords) {
  Expect({
      {Put(3, "FINAL-DRVE"), {"3: expected FINAL-DRIVE, found \"FINAL-DRVE\""}},
      {Put(5, "final-driven"), {"5: expected FINAL-DRIVEN, found \"final-driven\""}},
      {Put(7, "GEAR-ROWS,2,PRIMARIES"), {"7: expected PRIMARY, found \"PRIMARIES\""}},
      {Put(14, "M34"), {"14: expected M34-ARRAY behind 2 gear rows, found \"M34\""}},
      {Erase(3), {"3: expected FINAL-DRIVE, found \"14\""}},
  });
}

TEST(CheckList, AKeywordIsLookedForUpToTheNextOne) {
  SampleList list;
  list[3] = "FINAL-DRVE";
  list[10] = "FINAL-DRIVE";
  EXPECT_EQ(Remarks(list.Text()), Lines{"3: expected FINAL-DRIVE, found \"FINAL-DRVE\""});
}

TEST(CheckList, BehindAMisspeltKeywordReadingGoesOn) {
  SampleList list;
  list[3] = "FINAL-DRVE";
  list[4] = "14,x,99";
  EXPECT_EQ(Remarks(list.Text()),
            (Lines{"3: expected FINAL-DRIVE, found \"FINAL-DRVE\"", "4: \"x\" is no number"}));
}

TEST(CheckList, Sizes) {
  Expect({
      {Put(4, "14,15"), {"5: the end mark 99 of the FINAL-DRIVE list is missing"}},
      {Put(6, "36,40"), {"7: the end mark 99 of the FINAL-DRIVEN list is missing"}},
      {Put(4, "99"), {"4: the FINAL-DRIVE list holds no size"}},
      {Put(4, "14,x,99"), {"4: \"x\" is no number"}},
      {Put(4, "14,,99"), {"4: \"\" is no number"}},
      {Put(4, "14.5,15,99"), {"w4: 14.5 is not a whole number; it is read as 14"}},
      {Put(4, "14,40000,99"), {"4: 40000 is out of range, -32768 to 32767"}},
      {Put(4, "14,0,99"), {"4: 0 teeth: at least 1 is needed"}},
      {Put(4, "14,-3,99"), {"4: -3 teeth: at least 1 is needed"}},
      {Put(4, "14,14,99"), {"w4: size 14 stands twice"}},
      {Put(4, "9,99"), {"w4: 9 teeth do not have two digits, so plan files cannot name the row"}},
      {Put(6, "100,99"), {"w6: 100 teeth do not have two digits, so plan files cannot name the row"}},
      {Put(4, "11,12,13,14,15,16,17,18,19,20"), {}},
      {Put(4, "11,12,13,14,15,16,17,18,19,20,99"),
       {"4: the FINAL-DRIVE list is full with 10 sizes; a full list has no end mark"}},
      {Put(4, "11,12,13,14,15,16,17,18,19,20,21,22,99"),
       {"4: the FINAL-DRIVE list is full with 10 sizes; no more fit"}},
      {Put(6, "31,32,33,34,35,36,37,38,39,40,41,42,43,44,45,46,47,48,49,50"), {}},
      {Put(6, "31,32,33,34,35,36,37,38,39,40,41,42,43,44,45,46,47,48,49,50,99"),
       {"6: the FINAL-DRIVEN list is full with 20 sizes; a full list has no end mark"}},
  });
}

TEST(CheckList, NumberOfGearRows) {
  Expect({
      {Put(7, "GEAR-ROWS,0,PRIMARY"), {"7: 0 gear rows; 1 to 10 are possible"}},
      {Put(7, "GEAR-ROWS,-1,PRIMARY"), {"7: -1 gear rows; 1 to 10 are possible"}},
      {Put(7, "GEAR-ROWS,11,PRIMARY"), {"7: 11 gear rows; 1 to 10 are possible"}},
      {Put(7, "GEAR-ROWS,32767,PRIMARY"), {"7: 32767 gear rows; 1 to 10 are possible"}},
      {Put(7, "GEAR-ROWS,32768,PRIMARY"), {"7: 32768 is out of range, -32768 to 32767"}},
      {Put(7, "GEAR-ROWS,two,PRIMARY"), {"7: \"two\" is no number"}},
      {Put(7, "GEAR-ROWS,1,PRIMARY"),
       {"14: 2 gear rows, but 1 are announced",
        "w15: the matrix goes on; 1 numbers are needed for 1 gear rows, the others are ignored"}},
  });
}

TEST(CheckList, Primaries) {
  Expect({
      {Erase(9), {"9: the end mark 99 of the primary list is missing"}},
      {Put(9, "99,"),
       {"w9: what stands behind the end mark counts as the first of the two free lines",
        "11: gear row 1: text, driving and driven teeth of six gears are 18 fields, found 1",
        "14: 3 gear rows, but 2 are announced"}},
      {Erase(8), {"8: there is no primary pair"}},
      {Put(8, "2O,60"), {"8: \"2O\" is no number"}},
      {Put(8, "20,6O"), {"8: \"6O\" is no number"}},
      {Put(8, "20,0"), {"8: 0 teeth: at least 1 is needed"}},
      {Put(8, "0,60"), {"8: 0 teeth: at least 1 is needed"}},
      {Insert(9, "20,60"), {"w9: primary pair 20,60 stands twice"}},
      {Put(8, "20,60,21,60,22,60,23,60,24,60,25,60,26,60,27,60"), {}},
      {Put(8, "20,60,21,60,22,60,23,60,24,60,25,60,26,60,27,60,28,60"), {"8: more than 8 primary pairs"}},
  });
  SampleList list;
  list[8] = "20,60,21,60,22,60,23,60,24,60,25,60,26,60,27,60";
  list.Erase(9);
  EXPECT_EQ(Remarks(list.Text()), Lines{"9: the end mark 99 of the primary list is missing"});
  // The program takes one field for the mark, whatever it holds.
  list.Insert(9, "END");
  EXPECT_EQ(Remarks(list.Text()), Lines{"w9: \"END\" is taken for the end mark of the full primary list"});
  list[9] = "gear 1, gear 2";
  list.Erase(10);
  EXPECT_EQ(Remarks(list.Text()),
            (Lines{"w9: \"gear 1\" is taken for the end mark of the full primary list",
                   "w9: what stands behind the end mark counts as the first of the two free lines"}));
}

TEST(CheckList, GearRows) {
  Expect({
      {Put(12, "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23"),
       {"12: gear row 1: text, driving and driven teeth of six gears are 18 fields, found 17"}},
      {Put(13, "1B,15,28,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"13: gear row 2: text, driving and driven teeth of six gears are 18 fields, found 17"}},
      {Put(13, "1B,15,28,28,99,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"13: gear row 2: text, driving and driven teeth of six gears are 18 fields, found 19"}},
      {Erase(13), {"13: 1 gear rows, but 2 are announced"}},
      {Insert(13, "1C,15,28,2C,18,27,3C,20,25,4C,25,27,5C,24,23,6C,27,24"),
       {"15: 3 gear rows, but 2 are announced"}},
      {Put(13, "1A,15,28,99,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"w13: gear 1, row 2: \"1A\" stands in row 1 already"}},
      {Put(13, "1-B,15,28,99,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"w13: gear 1, row 2: \"1-B\" holds \"-\", which parts the gears in plan files"}},
      {Put(13, "1B,0,28,99,99,99,3B,20,25,4B,25,0,5B,24,23,6B,27,24"),
       {"13: 0 teeth: at least 1 is needed", "13: 0 teeth: at least 1 is needed"}},
      {Put(13, "1B,15,28,99,0,0,3B,20,25,4B,25,27,5B,24,23,6B,27,24"), {}},
      {Put(13, "1B,15,28,99,,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"w13: \"\" is no number, but is not used"}},
      {Put(13, "1B,15,28,99,x,y,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"w13: \"x\" is no number, but is not used", "w13: \"y\" is no number, but is not used"}},
      {Put(13, "1B,15,28,,18,27,3B,20,25,4B,25,27,5B,24,23,6B,27,24"),
       {"w13: gear 2, row 2: the text is empty"}},
      {Put(13, "1B,15,2B,99,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24"), {"13: \"2B\" is no number"}},
      {Put(12, "1A,14,29,99,99,99,3A,19,24,4A,22,24,5A,26,25,6A,23,21"),
       {"w12: gear 2 has no pair in any row: no search finds a plan, and the first plan has the empty place "
        "of "
        "row 1, \"99\", and counts with its 99 over 99 teeth"}},
      {Put(13, "1B\n15,28,99,99,99,3B,20,25\n4B,25,27,5B,24,23,6B,27,24"), {}},
  });
}

TEST(CheckList, MoreGearRowsThanTheTablesHold) {
  SampleList list = TallList();
  EXPECT_EQ(Remarks(list.Text()),
            Lines{"w7: 11 gear rows, of which the program reads 10; it ends where it looks for the next"});
  list.Erase(14);
  EXPECT_EQ(Remarks(list.Text()), Lines{"7: 11 gear rows; 1 to 10 are possible"});
}

TEST(CheckList, QuotationMarks) {
  Expect({
      {Put(3, "\"FINAL-DRIVE\" x"),
       {"w3: text behind the closing quotation mark of \"FINAL-DRIVE\" is ignored"}},
      {Put(4, "\"14\"x,15,99"), {"w4: text behind the closing quotation mark of \"14\" is ignored"}},
  });
  SampleList open;
  open[2] = "\"TEST";
  EXPECT_EQ(Remarks(open.Text()).back(), "13: expected FINAL-DRIVE, found \"25\"") << "up to the next mark";
  open[13] = "1B,15,28,99,99,99,3B,20,25,4B,25,27,5B,24,23,6B,27,24";
  EXPECT_EQ(Remarks(open.Text())[0], "2: a quotation mark is not closed");
  EXPECT_EQ(Remarks(open.Text()).back(), "18: the file ends where FINAL-DRIVE is expected");
  SampleList list;
  list.Erase(18);
  list.Erase(17);
  list[16] = "0,\"99";
  std::string text = list.Text();
  EXPECT_EQ(Remarks(text).back(), "16: \"99?\" is no number") << text;
  text.pop_back();
  EXPECT_EQ(Remarks(text), Lines{"w16: a quotation mark is not closed"}) << "the number is read all the same";
}

TEST(CheckList, Matrix) {
  Expect({
      {Put(16, "0"), {"17: the matrix ends after 3 numbers; 4 numbers are needed for 2 gear rows"}},
      {Put(16, "0,0,0"),
       {"w16: the matrix goes on; 4 numbers are needed for 2 gear rows, the others are ignored"}},
      {Put(16, "0,0,"), {}},
      {Insert(17, "0,0"),
       {"w17: the matrix goes on; 4 numbers are needed for 2 gear rows, the others are ignored"}},
      {Put(16, "0,x"), {"16: \"x\" is no number"}},
      {Put(15, "0,0,0,0,SHIFT_NE=12000"), {"w18: SHIFT_NE stands in line 15 already; the later line holds"}},
  });
}

TEST(CheckList, TellsEveryFaultInTheOrderOfTheLines) {
  SampleList list;
  list[4] = "14,x,99";
  list[8] = "20,0";
  list[12] = "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6-A,23,21";
  list[17] = "TYRE=2";
  list[18] = "SHIFT_NE=1";
  EXPECT_EQ(Remarks(list.Text()),
            (Lines{"4: \"x\" is no number", "8: 0 teeth: at least 1 is needed",
                   "w12: gear 6, row 1: \"6-A\" holds \"-\", which parts the gears in plan files",
                   "w17: unknown key \"TYRE\"", "w18: SHIFT_NE: 1 is out of range, 5000 to 24000"}));
}

TEST(CheckList, FilesThatAreNoText) {
  EXPECT_EQ(Remarks(""), Lines{"1: the file is empty"});
  EXPECT_EQ(Remarks(" \r\n\t\n"), Lines{"1: the file is empty"});
  EXPECT_EQ(Remarks(std::string("LIST\nNX4\n\0\n", 11)),
            Lines{"3: no text file: it holds control characters"});
  EXPECT_EQ(Remarks("\x7F"
                    "ELF\x02\x01"),
            Lines{"1: no text file: it holds control characters"});
  EXPECT_EQ(Remarks("\xFF\xFE"), Lines{"1: no machine list: it begins with \"\xFF\xFE\" and not with LIST"});
  EXPECT_EQ(Remarks(SampleList().Text() + "\x1A"), Lines{});
  SampleList list;
  list[10] = "a heading\f";
  EXPECT_EQ(Remarks(list.Text()), Lines{"w10: a control character"}) << "the program reads it all the same";
}

TEST(CheckList, TruncatedListsEndWhereTheyEnd) {
  SampleList list;
  const auto cutBehind = [&](int line) {
    const std::string text = list.Text();
    std::size_t at = 0;
    for (int k = 0; k < line; ++k) at = text.find('\n', at) + 1;
    return Remarks(text.substr(0, at));
  };
  EXPECT_EQ(cutBehind(1), Lines{"1: the file ends where the machine's name is expected"});
  EXPECT_EQ(cutBehind(2), Lines{"2: the file ends where FINAL-DRIVE is expected"});
  EXPECT_EQ(cutBehind(3),
            Lines{"3: the file ends where the end mark 99 of the FINAL-DRIVE list is expected"});
  list[4] = "11,12,13,14,15,16,17,18,19,20";
  EXPECT_EQ(cutBehind(4), Lines{"4: the file ends where FINAL-DRIVEN is expected"})
      << "a full list has no mark";
  list[4] = "14,15,99";
  EXPECT_EQ(cutBehind(4), Lines{"4: the file ends where FINAL-DRIVEN is expected"});
  EXPECT_EQ(cutBehind(6), Lines{"6: the file ends where GEAR-ROWS is expected"});
  EXPECT_EQ(cutBehind(7), Lines{"7: the file ends where the end mark 99 of the primary list is expected"});
  EXPECT_EQ(cutBehind(9), Lines{"9: the file ends where one of the two free lines is expected"});
  EXPECT_EQ(cutBehind(10), Lines{"10: the file ends where one of the two free lines is expected"});
  EXPECT_EQ(cutBehind(11), Lines{"11: the file ends in gear 1, row 1"});
  EXPECT_EQ(cutBehind(12), Lines{"12: the file ends in gear 1, row 2"});
  EXPECT_EQ(cutBehind(13), Lines{"13: the file ends where M34-ARRAY is expected"});
  EXPECT_EQ(cutBehind(14),
            Lines{"14: the matrix ends after 0 numbers; 4 numbers are needed for 2 gear rows"});
  EXPECT_EQ(cutBehind(15),
            Lines{"15: the matrix ends after 2 numbers; 4 numbers are needed for 2 gear rows"});
  EXPECT_EQ(cutBehind(16), Lines{});
}

}  // namespace
}  // namespace veldrin
