// Text functions: positions and lengths count characters, whatever bytes they take.
#include "runtime/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

TEST(Text, LengthCountsCharacters) {
  EXPECT_EQ(Length(""), 0);
  EXPECT_EQ(Length("abc"), 3);
  EXPECT_EQ(Length("計算中です"), 5);
  EXPECT_EQ(Length("é"), 1);
  EXPECT_EQ(Length("😀"), 1);
  EXPECT_EQ(Length("\xE8\xA8"), 2) << "a cut character counts by its bytes";
  EXPECT_EQ(Length("\xFF\x80z"), 3);
}

TEST(Text, LeftAndRightCutAtCharacters) {
  EXPECT_EQ(Left("13-45", 2), "13");
  EXPECT_EQ(Right("13-45", 2), "45");
  EXPECT_EQ(Left("ab", 5), "ab");
  EXPECT_EQ(Right("ab", 5), "ab");
  EXPECT_EQ(Left("ab", 0), "");
  EXPECT_EQ(Right("ab", 0), "");
  EXPECT_EQ(Left("機種ファイル", 2), "機種");
  EXPECT_EQ(Right("機種ファイル", 4), "ファイル");
  EXPECT_EQ(Left("", 1), "");
  EXPECT_EQ(Right("", 1), "");
}

TEST(Text, MidBeginsAtACharacterFromOne) {
  EXPECT_EQ(Mid("FROM:NX4.RAT", 6), "NX4.RAT");
  EXPECT_EQ(Mid("FROM:NX4.RAT", 6, 3), "NX4");
  EXPECT_EQ(Mid("abc", 3, 5), "c");
  EXPECT_EQ(Mid("abc", 4, 1), "");
  EXPECT_EQ(Mid("abc", 9), "");
  EXPECT_EQ(Mid("計算中です", 3, 2), "中で");
  EXPECT_EQ(Mid("計算中です", 4), "です");
}

TEST(Text, CharactersAreTextsOfTheirOwn) {
  EXPECT_EQ(Characters("aé中😀"), (std::vector<std::string>{"a", "é", "中", "😀"}));
  EXPECT_TRUE(Characters("").empty());
}

TEST(Text, FindGivesThePositionInCharacters) {
  EXPECT_EQ(Find("14.29", "."), 3);
  EXPECT_EQ(Find("14.29", "-"), 0);
  EXPECT_EQ(Find("a-b-c", "-", 3), 4);
  EXPECT_EQ(Find("a-b-c", "-", 5), 0);
  EXPECT_EQ(Find("機種が変更されます", "変更"), 4);
  EXPECT_EQ(Find("機種が機種", "機種", 2), 4);
  EXPECT_EQ(Find("abc", ""), 1);
  EXPECT_EQ(Find("abc", "", 3), 3);
  EXPECT_EQ(Find("", "a"), 0);
}

TEST(Text, ContainsComparesExactlyUnlessCaseIsLeftAside) {
  EXPECT_TRUE(Contains("title - Changed", " - Changed"));
  EXPECT_FALSE(Contains("title - changed", " - Changed"));
  EXPECT_TRUE(Contains("abc", ""));
  EXPECT_TRUE(ContainsIgnoringCase("C:\\VELDRIN.EXE", "veldrin.exe"));
  EXPECT_FALSE(ContainsIgnoringCase("abc", "abd"));
  EXPECT_TRUE(EqualsIgnoringCase("NX4.RAT", "nx4.rat"));
  EXPECT_FALSE(EqualsIgnoringCase("NX4", "NX4 "));
}

TEST(Text, CaseChangesForLettersAlone) {
  struct Case {
    const char* lower;
    const char* upper;
  };
  const Case cases[] = {
      {"nx4", "NX4"}, {"az{`", "AZ{`"}, {"éàþö", "ÉÀÞÖ"},   {"αρσω", "ΑΡΣΩ"},     {"яа", "ЯА"},
      {"ёђ", "ЁЂ"},   {"ａｚ", "ＡＺ"}, {"1.9-+", "1.9-+"}, {"機種ァ", "機種ァ"}, {"÷", "÷"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(UpperCase(c.lower), c.upper);
    EXPECT_EQ(LowerCase(c.upper), c.lower);
    EXPECT_EQ(UpperCase(c.upper), c.upper);
    EXPECT_EQ(LowerCase(c.lower), c.lower);
  }
  EXPECT_EQ(UpperCase("×"), "×");
  EXPECT_EQ(LowerCase("×"), "×");
  EXPECT_EQ(UpperCase("ß"), "ß");
  EXPECT_EQ(UpperCase("😀a"), "😀A");
  EXPECT_EQ(LowerCase("\xFFZ"), "\xFFz");
}

TEST(Text, EveryLetterHasItsOtherCase) {
  struct Run {
    const char* lower;
    const char* upper;
  };
  const Run runs[] = {
      {"abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
      {"àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ", "ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ"},
      {"αβγδεζηθικλμνξοπρστυφχψωϊϋ", "ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩΪΫ"},
      {"абвгдежзийклмнопрстуфхцчшщъыьэюя", "АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"},
      {"ѐёђѓєѕіїјљњћќѝўџ", "ЀЁЂЃЄЅІЇЈЉЊЋЌЍЎЏ"},
      {"ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ",
       "ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ"},
  };
  for (const Run& run : runs) {
    const std::vector<std::string> lower = Characters(run.lower);
    const std::vector<std::string> upper = Characters(run.upper);
    ASSERT_EQ(lower.size(), upper.size()) << run.lower;
    for (std::size_t k = 0; k < lower.size(); ++k) {
      EXPECT_EQ(UpperCase(lower[k]), upper[k]);
      EXPECT_EQ(LowerCase(upper[k]), lower[k]);
    }
  }
}

TEST(Text, WhatLiesBesideTheLettersHasNoOtherCase) {
  // In front of a run of letters and behind it, then a gap inside of one, then the end of each length of
  // bytes.
  for (const char* text :
       {"@", "[", "`", "{",  "¿",  "×",  "ß",  "÷",    "ΐ",      "\u03A2", "ΰ",      "ς",
        "ό", "Ѡ", "ѡ", "＠", "［", "｀", "｛", "\x7F", "\u0080", "\u07FF", "\u0800", "\uFFFF"}) {
    EXPECT_EQ(UpperCase(text), text);
    EXPECT_EQ(LowerCase(text), text);
  }
  for (unsigned char second = 0x80; second < 0xC0; ++second) {
    const std::string character = {'\xC2', static_cast<char>(second)};  // U+0080 to U+00BF
    EXPECT_EQ(Length(character), 1);
    EXPECT_EQ(UpperCase(character), character);
    EXPECT_EQ(LowerCase(character), character);
  }
}

TEST(Text, TrimTakesBlanksFromTheEnds) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim("\ta\t"), "\ta\t");
  EXPECT_EQ(Trim("　"), "　") << "the ideographic blank is a character";
}

TEST(Text, LettersSortAfterTheDigits) {
  for (const char* text : {"", "0123456789", "-1.5", "+1,5", " 7 ", "*#/"})
    EXPECT_FALSE(HasLetter(text)) << text;
  for (const char* text : {":", "a", "1e5", "12Z", "٣", "é", "7速"}) EXPECT_TRUE(HasLetter(text)) << text;
}

TEST(Text, PatternsMatchNamesWithoutRegardToCase) {
  struct Case {
    const char* name;
    const char* pattern;
    bool matches;
  };
  const Case cases[] = {
      {"NX4.RAT", "*.rat", true},
      {"nx4.rat", "*.RAT", true},
      {"NX4.RATS", "*.RAT", false},
      {"NX4", "*.*", true},
      {"NX4", "*.", true},
      {"NX4.RAT", "*.", false},
      {"veld000.tmp", "VELD???.TMP", true},
      {"veld00.tmp", "VELD???.TMP", false},
      {"機種.rat", "??.rat", true},
      {"a", "", false},
      {"", "", true},
      {"", "*", true},
      {"abc", "a*c", true},
      {"abcd", "a*c", false},
      {"aXbXc", "a*x*c", true},
      {"a.b.c", "*.c", true},
      {"readme", "r*d?e", true},
      {"nx4", "n*.", true},
      {"n.x", "n*.", false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(MatchesPattern(c.name, c.pattern), c.matches) << c.name << " by " << c.pattern;
  }
}

}  // namespace
}  // namespace veldrin
