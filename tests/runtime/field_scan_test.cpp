// Fields and lines as they are found: where they begin and end, and what is odd about them.
#include "runtime/field_scan.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(FieldScan, TellsWhereAFieldBeginsAndWhatFollowsIt) {
  struct Case {
    const char* text;
    std::size_t at;
    const char* field;
    std::size_t begin;
    std::size_t next;
    bool endsLine;
  };
  const Case cases[] = {
      {"", 0, "", 0, 0, true},
      {"a", 1, "", 1, 1, true},
      {"a,b", 0, "a", 0, 2, false},
      {"a,b", 2, "b", 2, 3, true},
      {"a,", 2, "", 2, 2, true},
      {"  a \t,b", 0, "a", 2, 6, false},
      {"a\r\nb", 0, "a", 0, 3, true},
      {"a\n\rb", 0, "a", 0, 2, true},
      {"a\rb", 0, "a", 0, 2, true},
      {" \n", 0, "", 1, 2, true},
      {"x,\"a,\nb\" ,c", 2, "a,\nb", 2, 10, false},
      {"\"a\"\r\n", 0, "a", 0, 5, true},
      {"\"\"", 0, "", 0, 2, true},
  };
  for (const Case& c : cases) {
    const FieldScan found = ScanField(c.text, c.at);
    EXPECT_EQ(found.text, c.field) << '[' << c.text << ']';
    EXPECT_EQ(found.begin, c.begin) << '[' << c.text << ']';
    EXPECT_EQ(found.next, c.next) << '[' << c.text << ']';
    EXPECT_EQ(found.endsLine, c.endsLine) << '[' << c.text << ']';
  }
}

TEST(FieldScan, TellsWhatIsWrongWithQuotationMarks) {
  struct Case {
    const char* text;
    const char* field;
    bool unclosed;
    bool dropsText;
  };
  const Case cases[] = {
      {"\"a\" \t,b", "a", false, false}, {"\"a\" x,b", "a", false, true}, {"\"a\"\"b\",c", "a", false, true},
      {"\"a,b", "a,b", true, false},     {"\"", "", true, false},         {"a\"b,c", "a\"b", false, false},
  };
  for (const Case& c : cases) {
    const FieldScan found = ScanField(c.text, 0);
    EXPECT_EQ(found.text, c.field) << '[' << c.text << ']';
    EXPECT_EQ(found.unclosed, c.unclosed) << '[' << c.text << ']';
    EXPECT_EQ(found.dropsText, c.dropsText) << '[' << c.text << ']';
  }
}

TEST(LineScan, LeavesTheLineEndOut) {
  const std::string text = " a,\r\n\nb";
  EXPECT_EQ(ScanLine(text, 0).text, " a,");
  EXPECT_EQ(ScanLine(text, 0).next, 5U);
  EXPECT_EQ(ScanLine(text, 5).text, "");
  EXPECT_EQ(ScanLine(text, 5).next, 6U);
  EXPECT_EQ(ScanLine(text, 6).text, "b");
  EXPECT_EQ(ScanLine(text, 6).next, 7U);
  EXPECT_EQ(ScanLine(text, 7).text, "");
  EXPECT_EQ(ScanLine(text, 7).next, 7U);
}

TEST(LineEnds, OfTwoCharactersCountOnce) {
  EXPECT_EQ(CountLineEnds(""), 0);
  EXPECT_EQ(CountLineEnds("a"), 0);
  EXPECT_EQ(CountLineEnds("a\r\nb\rc\nd\n\re"), 5);
}

}  // namespace
}  // namespace veldrin
