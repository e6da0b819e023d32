// Code page 932 by the system: both ways, and what is no text of it.
#include "platform/system_code_pages.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

// "鈴鹿 ﾃｽﾄ ソ能表、3速" with CR LF behind: characters whose second byte is a backslash among them.
constexpr char kJapaneseBytes[] =
    "\x97\xE9\x8E\xAD \xC3\xBD\xC4 \x83\x5C\x94\x5C\x95\x5C\x81\x41"
    "3\x91\xAC\r\n";
constexpr char kJapaneseText[] = "鈴鹿 ﾃｽﾄ ソ能表、3速\r\n";

TEST(SystemCodePages, EveryCharacterOfThePageComesBack) {
  const CodePages pages = SystemCodePages(true);
  int characters = 0;
  for (int lead = 0x81; lead <= 0xFC; ++lead) {
    if (lead > 0x9F && lead < 0xE0) continue;
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      const std::string bytes{static_cast<char>(lead), static_cast<char>(trail)};
      const auto text = pages.decode(kJapanesePage, bytes);
      if (!text) continue;
      ++characters;
      const auto back = pages.encode(kJapanesePage, *text);
      ASSERT_TRUE(back) << lead << " " << trail;
      // Some characters stand in the page twice.
      EXPECT_EQ(pages.decode(kJapanesePage, *back), text) << lead << " " << trail;
    }
  }
  EXPECT_GT(characters, 7000);
  std::string plain;
  for (int c = 0; c < 0x80; ++c) plain += static_cast<char>(c);
  EXPECT_EQ(pages.decode(kJapanesePage, plain), plain);
  EXPECT_EQ(pages.encode(kJapanesePage, plain), plain);
}

TEST(SystemCodePages, WhatThePageDoesNotHoldIsToldAsSuch) {
  const CodePages pages = SystemCodePages(true);
  EXPECT_EQ(pages.decode(kJapanesePage, "ab\x81"), std::nullopt);
  EXPECT_EQ(pages.decode(kJapanesePage, "\xFF"), std::nullopt);
  EXPECT_EQ(pages.encode(kJapanesePage, "한"), std::nullopt);
  EXPECT_EQ(pages.encode(kJapanesePage, "é"), std::nullopt);
  EXPECT_EQ(pages.encode(123456, "a"), std::nullopt);
  EXPECT_EQ(pages.decode(123456, "a"), std::nullopt);
  EXPECT_EQ(pages.decode(kJapanesePage, ""), "");
}

TEST(SystemCodePages, LongTextsAreConvertedWhole) {
  const CodePages pages = SystemCodePages(true);
  std::string bytes;
  std::string text;
  for (int i = 0; i < 5000; ++i) bytes += kJapaneseBytes, text += kJapaneseText;
  EXPECT_EQ(pages.decode(kJapanesePage, bytes), text);
  EXPECT_EQ(pages.encode(kJapanesePage, text), bytes);
}

}  // namespace
}  // namespace veldrin
