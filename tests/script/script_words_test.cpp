#include "script/script_words.h"

#include "script/script_error.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

std::vector<std::string> Texts(const char* line) {
  std::vector<std::string> texts;
  for (const Word& word : SplitWords(line)) texts.push_back(word.text);
  return texts;
}

using List = std::vector<std::string>;

struct Case {
  const char* line;
  List words;
};

TEST(ScriptWords, LinesAreSplit) {
  const Case cases[] = {
      {"", {}},
      {"  \t ", {}},
      {"show Form2.Caption", {"show", "Form2.Caption"}},
      {"\tshow   Form2.Caption  ", {"show", "Form2.Caption"}},
      // Quotes.
      {R"(set ModeWord "two words")", {"set", "ModeWord", "two words"}},
      {R"(set ModeWord "")", {"set", "ModeWord", ""}},
      {R"(set ModeWord "say ""no""")", {"set", "ModeWord", "say \"no\""}},
      {R"(set ModeWord """")", {"set", "ModeWord", "\""}},
      {R"(file "C:\TEMP\" "a\n")", {"file", "C:\\TEMP\\", "a\\n"}},
      {R"(set X a"b")", {"set", "X", "a\"b\""}},
      // Comments begin where a word could.
      {"# nothing", {}},
      {"show X # the rest", {"show", "X"}},
      {"show X#Y", {"show", "X#Y"}},
      {R"(show "# no comment")", {"show", "# no comment"}},
      {R"(show "X" #"Y")", {"show", "X"}},
      // Joining.
      {R"("first line" & CRLF & "second")", {"first line\r\nsecond"}},
      {R"("first line"&CRLF&"second" next)", {"first line\r\nsecond", "next"}},
      {"CR LF CRLF TAB", {"\r", "\n", "\r\n", "\t"}},
      {R"("CR" "TAB")", {"CR", "TAB"}},
      {"Tab Cr CRLFX", {"Tab", "Cr", "CRLFX"}},
      {"a & b & c d", {"abc", "d"}},
      {"a &b", {"ab"}},
      {"a&CR", {"a\r"}},
      {R"(a&"b")", {"ab"}},
      // An "&" inside of a plain word.
      {"File(&F) A&B", {"File(&F)", "A&B"}},
  };
  for (const Case& c : cases) EXPECT_EQ(Texts(c.line), c.words) << c.line;
}

TEST(ScriptWords, WordsOutsideOfAsciiStayWhole) {
  EXPECT_EQ(Texts("show べるどりん君[1] \"ＭＳ ゴシック\""),
            (List{"show", "べるどりん君[1]", "ＭＳ ゴシック"}));
}

TEST(ScriptWords, SourceIsWhatIsWritten) {
  const std::vector<Word> words = SplitWords(R"(  "a" & CR   b  # c)");
  ASSERT_EQ(words.size(), 2U);
  EXPECT_EQ(words[0].source, R"("a" & CR)");
  EXPECT_EQ(words[1].source, "b");
}

TEST(ScriptWords, OnlyAnUnquotedPieceIsPlain) {
  const std::vector<Word> words = SplitWords(R"(has "has" ha & s CR)");
  ASSERT_EQ(words.size(), 4U);
  EXPECT_TRUE(words[0].plain);
  EXPECT_FALSE(words[1].plain);
  EXPECT_FALSE(words[2].plain);
}

TEST(ScriptWords, WrongLinesAreErrors) {
  for (const char* line :
       {R"(show "X)", R"(show "X"")", R"(show "X"Y)", "& X", "show X &", "show X & & Y", "show X & # Y"}) {
    EXPECT_THROW(SplitWords(line), ScriptError) << line;
  }
}

}  // namespace
}  // namespace veldrin
