// Columns of a console.
#include "plan/columns.h"

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
