// Columns of a console.
#include "plan/output/columns.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(Columns, AreTwoForEastAsianCharacters) {
  struct Case {
    const char* text;
    int columns;
  };
  const Case cases[] = {
      {"", 0},           {"1A", 2},   {"é", 1},  // two bytes
      {"Ж9", 2},                                 //
      {"–€…", 3},                                // three bytes, yet narrow
      {"変速", 4},       {"３速", 4},            // a full-width digit
      {"ﾃｽﾄ", 3},                                // half-width katakana
      {"｡ﾟ", 2},                                 // the first and the last of them
      {"！～｠", 6},                             // and the last full-width forms before them
      {"　、〾", 6},                             // an ideographic blank
      {"ぁヿ", 4},                               //
      {"龥鿿", 4},                             //
      {"한", 2},                                 //
      {"𠀋", 2},                                 // four bytes
      {"🏍", 2},                               //
      {"\U00010400", 1},                         // four bytes, yet narrow
      {"\x82", 1},                               // no character at all
  };
  for (const Case& c : cases) EXPECT_EQ(Columns(c.text), c.columns) << c.text;
}

// The first and the last of each run of wide characters, and what lies right beside the runs.
TEST(Columns, RunsOfWideCharactersHaveTheirEnds) {
  for (const char* wide :
       {"\u1100", "\u115F", "\u2E80",     "\u303E",     "\u3041",     "\u4DBF",    "\u4E00", "\uA4CF",
        "\uAC00", "\uD7A3", "\uF900",     "\uFAFF",     "\uFE30",     "\uFE6F",    "\uFF01", "\uFF60",
        "\uFFE0", "\uFFE6", "\U0001F300", "\U0001FAFF", "\U00020000", "\U0003FFFD"}) {
    EXPECT_EQ(Columns(wide), 2) << wide;
  }
  for (const char* narrow :
       {"\u10FF", "\u1160", "\u2E7F",     "\u303F",     "\u3040",     "\u4DC0",    "\u4DFF", "\uA4D0",
        "\uABFF", "\uD7A4", "\uF8FF",     "\uFB00",     "\uFE2F",     "\uFE70",    "\uFF00", "\uFF61",
        "\uFFDF", "\uFFE7", "\U0001F2FF", "\U0001FB00", "\U0001FFFF", "\U0003FFFE"}) {
    EXPECT_EQ(Columns(narrow), 1) << narrow;
  }
}

TEST(Columns, AreFilledWithBlanks) {
  EXPECT_EQ(Behind("é", 3), "é  ");
  EXPECT_EQ(Before("é", 3), "  é");
  EXPECT_EQ(Behind("変速", 6), "変速  ");
  EXPECT_EQ(Before("変速", 5), " 変速");
  EXPECT_EQ(Behind("abc", 3), "abc");
  EXPECT_EQ(Before("abcd", 3), "abcd") << "a wider text stays whole";
}

}  // namespace
}  // namespace veldrin
