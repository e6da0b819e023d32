// Fields and lines of hand-made files.
#include "runtime/text_file.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace veldrin {
namespace {

std::vector<std::string> FieldsOf(const std::string& text) {
  TextReader reader(text);
  std::vector<std::string> fields;
  while (!reader.AtEnd()) fields.push_back(reader.Field());
  return fields;
}

using Texts = std::vector<std::string>;

TEST(Fields, EndAtCommasAndAtEveryKindOfLineEnd) {
  struct Case {
    const char* text;
    Texts fields;
  };
  const Case cases[] = {
      {"", {}},
      {"a", {"a"}},
      {"a,b", {"a", "b"}},
      {"a\r\nb", {"a", "b"}},
      {"a\nb\n", {"a", "b"}},
      {"a\rb\r", {"a", "b"}},
      {"a\n\rb", {"a", "", "b"}},
      {"a,\nb", {"a", "", "b"}},
      {"a,,b", {"a", "", "b"}},
      {",", {""}},
      {"a,", {"a"}},
      {"\r\n", {""}},
      {"a\r\n\r\nb", {"a", "", "b"}},
      // Blanks around a field are ignored, those inside stay.
      {"  a b \t, \tc  \n", {"a b", "c"}},
      {"  ,  ", {"", ""}},
      // In double quotes a field holds commas, blanks and line ends; what follows them is dropped.
      {"\"14,29\", 14,29", {"14,29", "14", "29"}},
      {"\" a \",b", {" a ", "b"}},
      {"\"a\" x y,b", {"a", "b"}},
      {"\"a\r\nb\",c", {"a\r\nb", "c"}},
      {"\"\",a", {"", "a"}},
      {"\"open, to the end\nof the file", {"open, to the end\nof the file"}},
      {"\"", {""}},
      // A quotation mark inside a plain field is a character.
      {"a\"b\",c", {"a\"b\"", "c"}},
      {"計算, \"中,で\"", {"計算", "中,で"}},
  };
  for (const Case& c : cases) EXPECT_EQ(FieldsOf(c.text), c.fields) << '[' << c.text << ']';
}

TEST(Fields, BehindTheLastOneAreFault62) {
  TextReader reader("a\n");
  EXPECT_EQ(reader.Field(), "a");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(Guarded([&] { reader.Field(); }), kFaultPastEnd);
  EXPECT_EQ(Guarded([&] { reader.Line(); }), kFaultPastEnd);
  EXPECT_EQ(Guarded([&] { reader.Int16Field(); }), kFaultPastEnd);
  EXPECT_EQ(Guarded([&] { reader.SingleField(); }), kFaultPastEnd);
}

TEST(NumberFields, AreReadWithAPointAndRoundedHalfToEven) {
  TextReader reader("14, 2.5,\" 7 \"\n-3,1.9,24000");
  EXPECT_EQ(reader.Int16Field(), 14);
  EXPECT_EQ(reader.Int16Field(), 2);
  EXPECT_EQ(reader.Int16Field(), 7);
  EXPECT_EQ(reader.Int16Field(), -3);
  EXPECT_EQ(reader.SingleField(), 1.9F);
  EXPECT_EQ(reader.SingleField(), 24000.0F);
}

TEST(NumberFields, ThatHoldNoNumberAreConsumedAllTheSame) {
  TextReader reader("x,40000,,1e39,5");
  EXPECT_EQ(Guarded([&] { reader.Int16Field(); }), kFaultTypeMismatch);
  EXPECT_EQ(Guarded([&] { reader.Int16Field(); }), kFaultOverflow);
  EXPECT_EQ(Guarded([&] { reader.Int16Field(); }), kFaultTypeMismatch);
  EXPECT_EQ(Guarded([&] { reader.SingleField(); }), kFaultOverflow);
  EXPECT_EQ(reader.Int16Field(), 5);
}

TEST(Lines, EndAtEveryKindOfLineEndAndKeepTheirBlanks) {
  TextReader reader(" a, \"b\" \r\n\nc\rd");
  EXPECT_EQ(reader.Line(), " a, \"b\" ");
  EXPECT_EQ(reader.Line(), "");
  EXPECT_EQ(reader.Line(), "c");
  EXPECT_EQ(reader.Line(), "d");
  EXPECT_TRUE(reader.AtEnd());
}

TEST(Lines, GoOnWhereAFieldEnded) {
  TextReader reader("99, first\nsecond\n\"99\" dropped\nthird\n1,2");
  EXPECT_EQ(reader.Field(), "99");
  EXPECT_EQ(reader.Line(), " first") << "the rest of the field's own line is a line";
  EXPECT_EQ(reader.Line(), "second");
  EXPECT_EQ(reader.Field(), "99");
  EXPECT_EQ(reader.Line(), "third");
  EXPECT_EQ(reader.Field(), "1");
  EXPECT_EQ(reader.Line(), "2");
}

TEST(TextReader, ReachesTheEndOfEveryText) {
  std::mt19937 random(3);
  const std::string characters = "a1 ,\"\r\n\t\xE4";
  for (int k = 0; k < 20000; ++k) {
    std::string text;
    for (unsigned length = random() % 12; length > 0; --length)
      text += characters[random() % characters.size()];
    TextReader reader(text);
    std::size_t reads = 0;
    while (!reader.AtEnd() && reads <= text.size()) {
      if (random() % 3 == 0) {
        reader.Line();
      } else {
        reader.Field();
      }
      ++reads;
    }
    ASSERT_LE(reads, text.size()) << '[' << text << ']';
  }
}

TEST(TextReader, BlankLinesAtTheEndAreNothingLeft) {
  for (const char* rest : {"", "\r\n", "\n\n", " \t\r\n  ", "   "}) {
    TextReader reader(std::string("1,A\r\n") + rest);
    EXPECT_FALSE(reader.OnlyBlankLinesLeft()) << rest;
    reader.Line();
    EXPECT_TRUE(reader.OnlyBlankLinesLeft()) << rest;
  }
  for (const char* rest : {"2", "\r\n\r\n2", " ,", "\n\"\""}) {
    TextReader reader(std::string("1,A\r\n") + rest);
    reader.Line();
    EXPECT_FALSE(reader.OnlyBlankLinesLeft()) << rest;
  }
}

}  // namespace
}  // namespace veldrin
