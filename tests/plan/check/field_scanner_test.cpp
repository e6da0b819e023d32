// The scanner against the reader of the program: the same fields and lines from every text, and their places.
#include "plan/check/field_scanner.h"

#include "runtime/text_file.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace veldrin {
namespace {

TEST(FieldScanner, TakesTheSameFieldsAndLinesAsTheReader) {
  std::mt19937 random(23);
  const std::string characters = "a1 ,\"\r\n\t";
  for (int round = 0; round < 50000; ++round) {
    std::string text;
    for (unsigned length = random() % 14; length > 0; --length)
      text += characters[random() % characters.size()];
    TextReader reader(text);
    FieldScanner scanner(text);
    while (!reader.AtEnd()) {
      ASSERT_FALSE(scanner.AtEnd()) << '[' << text << ']';
      if (random() % 4 == 0) {
        ASSERT_EQ(scanner.RestOfLine(), reader.Line()) << '[' << text << ']';
      } else {
        ASSERT_EQ(scanner.Field().text, reader.Field()) << '[' << text << ']';
      }
    }
    ASSERT_TRUE(scanner.AtEnd()) << '[' << text << ']';
  }
}

TEST(FieldScanner, TellsTheLineOfAField) {
  const std::string text = "a,b\r\n\"c\nd\",e\r  f\n\ng";
  FieldScanner scanner(text);
  EXPECT_EQ(scanner.Field().line, 1);
  EXPECT_EQ(scanner.Field().line, 1);
  EXPECT_EQ(scanner.Field().line, 2);
  const ScannedField behind = scanner.Field();
  EXPECT_EQ(behind.text, "e");
  EXPECT_EQ(behind.line, 3);
  EXPECT_EQ(scanner.Field().line, 4);
  EXPECT_EQ(scanner.Field().line, 5);
  EXPECT_EQ(scanner.Line(), 6);
  EXPECT_EQ(scanner.Field().text, "g");
  EXPECT_EQ(scanner.Line(), 6);
}

TEST(FieldScanner, EndOfAFileThatEndsInALineEndIsItsLastLine) {
  FieldScanner scanner("a\nb\n");
  scanner.Field();
  scanner.Field();
  EXPECT_TRUE(scanner.AtEnd());
  EXPECT_EQ(scanner.Line(), 2);
}

TEST(FieldScanner, TellsWhatTheReaderLetsPass) {
  FieldScanner scanner("\"a\" x,\"b\" ,c\n\"d");
  EXPECT_TRUE(scanner.Field().dropsText);
  const ScannedField b = scanner.Field();
  EXPECT_FALSE(b.dropsText);
  EXPECT_FALSE(b.endsLine);
  EXPECT_TRUE(scanner.Field().endsLine);
  const ScannedField d = scanner.Field();
  EXPECT_TRUE(d.unclosed);
  EXPECT_TRUE(d.endsLine);
}

}  // namespace
}  // namespace veldrin
