// UTF-8: which bytes are characters, and that every character goes there and back.
#include "runtime/utf8.h"

#include "runtime/text.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(Utf8, IsToldFromOtherBytes) {
  struct Case {
    std::string bytes;
    bool valid;
  };
  const Case cases[] = {
      {"", true},
      {"FROM:NX4.RAT\r\n", true},
      {"\xC3\xA9", true},           // é
      {"\xE9\x9B\xA8", true},       // 雨
      {"\xF0\x9F\x8F\x8D", true},   // beyond 16 bits
      {"\xEF\xBB\xBF", true},       // a byte order mark
      {"\xF4\x8F\xBF\xBF", true},   // the last character
      {"\xF4\x90\x80\x80", false},  // one beyond it
      {"\xC1\xBF", false},          // a letter in two bytes
      {"\xE0\x9F\xBF", false},      // two bytes would do
      {"\xF0\x8F\xBF\xBF", false},  // three bytes would do
      {"\xED\x9F\xBF", true},       // the last before the surrogates
      {"\xED\xA0\x80", false},      // a surrogate
      {"\xEE\x80\x80", true},       // the first behind them
      {"\xC3", false},              // ends inside a character
      {"\xE9\x9B", false},          //
      {"\x80", false},              // begins inside one
      {"\xE9\x9B"
       "A",
       false},                         // breaks off
      {"\xFF", false},                 // no byte of UTF-8
      {"caf\xE9", false},              // code page 1252
      {"\x89\x4A", false},             // code page 932
      {std::string("a\0b", 3), true},  // zero is a character
  };
  for (const Case& c : cases) EXPECT_EQ(IsValidUtf8(c.bytes), c.valid) << c.bytes;
}

TEST(Utf8, EveryCharacterGoesThereAndBack) {
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    std::string text;
    AppendCodePoint(text, code);
    const CodePoint point = CodePointAt(text, 0);
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    ASSERT_EQ(point.valid, !surrogate) << static_cast<unsigned>(code);
    if (surrogate) continue;
    ASSERT_EQ(point.code, code);
    ASSERT_EQ(point.bytes, text.size());
  }
}

TEST(Utf8, BytesThatAreNoCharacterStandForThemselves) {
  // A letter in three bytes, a surrogate, a character beyond the last.
  for (const std::string broken : {"\xE0\x81\xA1", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
    EXPECT_EQ(Length(broken), static_cast<int>(broken.size()));
    EXPECT_EQ(UpperCase(broken + "z"), broken + "Z");
    EXPECT_EQ(LowerCase(broken + "Z"), broken + "z");
    EXPECT_EQ(CodePointAt(broken, 0).bytes, 1U);
  }
}

}  // namespace
}  // namespace veldrin
