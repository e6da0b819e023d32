#include "platform/text_encoding.h"

#include "platform/system_code_pages.h"
#include "runtime/utf8.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>
#include <string>
#include <utility>

namespace veldrin {
namespace {

/// The system's own conversions.
std::optional<std::string> Decoded(int page, std::string_view bytes) {
  return SystemCodePages(false).decode(page, bytes);
}
std::optional<std::string> Encoded(int page, std::string_view text) {
  return SystemCodePages(false).encode(page, text);
}

/// A machine that knows code page 932 beside what is built in.
CodePages Pages(int systemPage, bool japanese) {
  CodePages pages;
  pages.systemPage = systemPage;
  pages.japanese = japanese;
  pages.decode = [](int page, std::string_view bytes) {
    return page == kJapanesePage ? Decoded(page, bytes) : std::nullopt;
  };
  pages.encode = [](int page, std::string_view text) {
    return page == kJapanesePage ? Encoded(page, text) : std::nullopt;
  };
  return pages;
}

constexpr char kPath[] = "C:\\DAT\\RAIN.nx4";
constexpr char kRain[] = "雨の日の設定です。\r\n";
// The same in code page 932.
constexpr char kRainBytes[] = "\x89\x4A\x82\xCC\x93\xFA\x82\xCC\x90\xDD\x92\xE8\x82\xC5\x82\xB7\x81\x42\r\n";

TEST(Western, EveryByteGoesThereAndBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    const std::string text = DecodeWestern(bytes);
    EXPECT_TRUE(IsValidUtf8(text)) << byte;
    EXPECT_EQ(EncodeWestern(text), bytes) << byte;
    // The system knows all but, perhaps, the five bytes without a character.
    const std::optional<std::string> known = Decoded(kWesternPage, bytes);
    if (known) {
      EXPECT_EQ(text, *known) << byte;
    }
  }
}

TEST(Western, BytesWithoutACharacterBecomeControlCharacters) {
  EXPECT_EQ(DecodeWestern("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(Western, WhatDoesNotFitIsToldAsNothing) {
  EXPECT_EQ(EncodeWestern("50 €"), "50 \x80");
  EXPECT_EQ(EncodeWestern("Ünÿ"), "\xDCn\xFF");
  EXPECT_EQ(EncodeWestern("雨"), std::nullopt);
  EXPECT_EQ(EncodeWestern("\xC2\x80"), std::nullopt);
  EXPECT_EQ(EncodeWestern("\xF0\x9F\x8F\x8D"), std::nullopt);
  EXPECT_EQ(EncodeWestern("\xC3"), std::nullopt);
}

TEST(TextEncoding, JapaneseFileRoundTripsUnderUtf8) {
  TextEncoding encoding(Pages(kUtf8Page, true));
  EXPECT_EQ(encoding.Decode(kPath, kRainBytes), kRain);
  EXPECT_EQ(encoding.Encode(kPath, kRain), kRainBytes);
}

TEST(TextEncoding, JapaneseRemarkKeepsEveryKindOfCharacter) {
  // Half-width and double-byte katakana, a backslash as second byte (0x5C of 表), blanks, numbers in circles.
  const std::string bytes =
      "FROM:NX4.RAT\r\n1.9\r\n\xD9\xC3\xDE \x83\x65\x83\x58\x83\x67\x81\x40\x95\x5C \x87\x40\x81\x60\r\n";
  TextEncoding encoding(Pages(kUtf8Page, true));
  const std::string text = encoding.Decode(kPath, bytes);
  EXPECT_EQ(text, "FROM:NX4.RAT\r\n1.9\r\nﾙﾃﾞ テスト　表 ①～\r\n");
  EXPECT_EQ(encoding.Encode(kPath, text), bytes);
}

TEST(TextEncoding, WesternFileRoundTripsUnderUtf8) {
  TextEncoding encoding(Pages(kUtf8Page, false));
  const std::string text = encoding.Decode(kPath, "caf\xE9 \x96 50 \x80\r\n");
  EXPECT_EQ(text, "café – 50 €\r\n");
  EXPECT_EQ(encoding.Encode(kPath, text), "caf\xE9 \x96 50 \x80\r\n");
}

TEST(TextEncoding, Utf8FileStaysUtf8) {
  for (const bool japanese : {false, true}) {
    TextEncoding encoding(Pages(kUtf8Page, japanese));
    EXPECT_EQ(encoding.Decode(kPath, kRain), kRain);
    EXPECT_EQ(encoding.Encode(kPath, kRain), kRain);
    EXPECT_EQ(encoding.Encode(kPath, "café"), "café");
  }
}

TEST(TextEncoding, FileOfPlainLettersIsUtf8) {
  TextEncoding encoding(Pages(kUtf8Page, true));
  EXPECT_EQ(encoding.Decode(kPath, "FROM:NX4.RAT\r\n"), "FROM:NX4.RAT\r\n");
  EXPECT_EQ(encoding.Encode(kPath, kRain), kRain);
}

TEST(TextEncoding, WhatDoesNotFitThePageTurnsTheFileIntoUtf8) {
  TextEncoding encoding(Pages(kUtf8Page, true));
  encoding.Decode(kPath, kRainBytes);
  EXPECT_EQ(encoding.Encode(kPath, "雨 é"), "雨 é");
  // Without it, the page serves again.
  EXPECT_EQ(encoding.Encode(kPath, kRain), kRainBytes);
  // Read as UTF-8, it stays so.
  encoding.Decode(kPath, "雨 é");
  EXPECT_EQ(encoding.Encode(kPath, kRain), kRain);
}

TEST(TextEncoding, BytesThatWouldPassForUtf8AreNotWritten) {
  TextEncoding encoding(Pages(kUtf8Page, false));
  encoding.Decode(kPath, "caf\xE9");
  // In 1252 this is C3 A9, which would be read as "é".
  EXPECT_EQ(encoding.Encode(kPath, "Ã©"), "Ã©");
}

TEST(TextEncoding, LikenessOfACharacterIsNotEnough) {
  CodePages pages = Pages(kUtf8Page, true);
  // A machine that writes "e" for "é" and calls it done.
  pages.encode = [](int, std::string_view) { return "\x89\x4A e"; };
  TextEncoding encoding(pages);
  encoding.Decode(kPath, kRainBytes);
  EXPECT_EQ(encoding.Encode(kPath, "雨 é"), "雨 é");
  EXPECT_EQ(encoding.Encode(kPath, "雨 e"), "\x89\x4A e");
}

TEST(TextEncoding, ByteOrderMarkIsDroppedAndPutBack) {
  TextEncoding encoding(Pages(kUtf8Page, false));
  EXPECT_EQ(encoding.Decode(kPath,
                            "\xEF\xBB\xBF"
                            "LIST\r\n"),
            "LIST\r\n");
  EXPECT_EQ(encoding.Encode(kPath, "LIST é\r\n"),
            "\xEF\xBB\xBF"
            "LIST é\r\n");
  // Only of this file.
  EXPECT_EQ(encoding.Encode("C:\\DAT\\OTHER.nx4", "LIST\r\n"), "LIST\r\n");
  // Read without it, the file keeps none.
  encoding.Decode(kPath, "LIST\r\n");
  EXPECT_EQ(encoding.Encode(kPath, "LIST\r\n"), "LIST\r\n");
}

TEST(TextEncoding, FileOfAByteOrderMarkAloneIsEmpty) {
  TextEncoding encoding(Pages(kUtf8Page, true));
  EXPECT_EQ(encoding.Decode(kPath, "\xEF\xBB\xBF"), "");
  EXPECT_EQ(encoding.Encode(kPath, ""), "\xEF\xBB\xBF");
}

TEST(TextEncoding, FileThatWasNeverReadIsWrittenInTheSystemsPage) {
  EXPECT_EQ(TextEncoding(Pages(kUtf8Page, true)).Encode(kPath, kRain), kRain);
  EXPECT_EQ(TextEncoding(Pages(kJapanesePage, true)).Encode(kPath, kRain), kRainBytes);
  EXPECT_EQ(TextEncoding(Pages(kWesternPage, false)).Encode(kPath, "café"), "caf\xE9");
}

TEST(TextEncoding, PathsAreComparedWithoutCase) {
  TextEncoding encoding(Pages(kUtf8Page, true));
  encoding.Decode("C:\\Dat\\Éñ Ｒain.NX4", kRainBytes);
  EXPECT_EQ(encoding.Encode("c:\\dAT\\éÑ ｒAIN.nx4", kRain), kRainBytes);
  EXPECT_EQ(encoding.Encode("c:\\dat\\en Rain.nx4", kRain), kRain);
}

TEST(TextEncoding, SystemsPageServesForBoth) {
  TextEncoding japanese(Pages(kJapanesePage, true));
  EXPECT_EQ(japanese.Decode(kPath, kRainBytes), kRain);
  EXPECT_EQ(japanese.Encode(kPath, kRain), kRainBytes);

  TextEncoding western(Pages(kWesternPage, false));
  EXPECT_EQ(western.Decode(kPath, "caf\xE9"), "café");
  EXPECT_EQ(western.Encode(kPath, "café"), "caf\xE9");
}

TEST(TextEncoding, Utf8FromAnotherSystemIsKnownBeforeTheSystemsPage) {
  for (const int page : {kJapanesePage, kWesternPage}) {
    TextEncoding encoding(Pages(page, page == kJapanesePage));
    EXPECT_EQ(encoding.Decode(kPath, kRain), kRain) << page;
    EXPECT_EQ(encoding.Encode(kPath, kRain), kRain) << page << ": it goes back as it came";
    EXPECT_EQ(encoding.Encode(kPath, "雨 é"), "雨 é") << page;
    const std::string marked = "\xEF\xBB\xBF";
    EXPECT_EQ(encoding.Decode(kPath, marked + "LIST\r\n"), "LIST\r\n") << page;
    EXPECT_EQ(encoding.Encode(kPath, "LIST\r\n"), marked + "LIST\r\n") << page;
  }
}

TEST(TextEncoding, PlainLettersBelongToTheSystemsPage) {
  TextEncoding encoding(Pages(kJapanesePage, true));
  EXPECT_EQ(encoding.Decode(kPath, "FROM:NX4.RAT\r\n"), "FROM:NX4.RAT\r\n");
  EXPECT_EQ(encoding.Encode(kPath, kRain), kRainBytes);
}

TEST(TextEncoding, ByteThatSpoilsUtf8LeadsToTheSystemsPage) {
  // The letters of kRain in UTF-8, cut in the middle of the last one, are no UTF-8 any more.
  const std::string cut = std::string("雨").substr(0, 2);
  TextEncoding encoding(Pages(kWesternPage, false));
  EXPECT_EQ(encoding.Decode(kPath, cut), "é›");
  EXPECT_EQ(encoding.Encode(kPath, "é›"), cut);
}

TEST(TextEncoding, WhatDoesNotFitTheSystemsPageIsWrittenAsUtf8) {
  TextEncoding western(Pages(kWesternPage, false));
  TextEncoding japanese(Pages(kJapanesePage, true));
  for (TextEncoding* encoding : {&western, &japanese}) {
    EXPECT_EQ(encoding->Encode(kPath, "é雨a"), "é雨a");
    EXPECT_EQ(encoding->Decode(kPath, "é雨a"), "é雨a") << "and reads back the same";
  }
  japanese.Decode(kPath, kRainBytes);
  EXPECT_EQ(japanese.Encode(kPath, "雨 é"), "雨 é");
  EXPECT_EQ(japanese.Encode(kPath, kRain), kRainBytes) << "without it, the page serves again";
}

TEST(TextEncoding, SystemsPageThatWouldPassForUtf8IsNotWritten) {
  // "ﾂｱ" in 932 and "Ã©" in 1252 are C2 B1 and C3 A9, which read as "±" and "é".
  TextEncoding japanese(Pages(kJapanesePage, true));
  EXPECT_EQ(japanese.Decode(kPath, "\xC2\xB1"), "±");
  TextEncoding fresh(Pages(kJapanesePage, true));
  EXPECT_EQ(fresh.Encode(kPath, "ﾂｱ"), "ﾂｱ");
  EXPECT_EQ(fresh.Decode(kPath, "ﾂｱ"), "ﾂｱ");
  TextEncoding western(Pages(kWesternPage, false));
  EXPECT_EQ(western.Encode(kPath, "Ã©"), "Ã©");
  EXPECT_EQ(western.Decode(kPath, "Ã©"), "Ã©");
}

/// Characters of the kinds that remarks are written in: kana and kanji.
std::string AnyRemark(std::mt19937& chance) {
  constexpr std::pair<char32_t, char32_t> kKinds[] = {{0x3041, 0x3093}, {0x30A1, 0x30F6}, {0x4E00, 0x9FA0}};
  std::string text;
  while (text.size() < 3 * 12) {
    const auto& [first, last] = kKinds[chance() % std::size(kKinds)];
    std::string character;
    AppendCodePoint(character, static_cast<char32_t>(first + chance() % (last - first + 1)));
    if (Encoded(kJapanesePage, character)) text += character;
  }
  return text;
}

TEST(TextEncoding, JapaneseRemarksInTheirPageDoNotPassForUtf8) {
  std::mt19937 chance(4);
  for (int i = 0; i < 5000; ++i) {
    const std::string text = AnyRemark(chance);
    const std::string bytes = Encoded(kJapanesePage, text).value_or("");
    TextEncoding encoding(Pages(kJapanesePage, true));
    ASSERT_EQ(encoding.Decode(kPath, bytes), text);
    ASSERT_EQ(encoding.Encode(kPath, text), bytes);
    ASSERT_EQ(encoding.Decode(kPath, text), text);
  }
}

TEST(TextEncoding, BytesThatThePageCannotHoldAreReadByteForByte) {
  // 0x81 wants a second byte.
  for (const int page : {kUtf8Page, kJapanesePage}) {
    TextEncoding encoding(Pages(page, true));
    const std::string text = encoding.Decode(kPath, "a\xFF\x81");
    EXPECT_EQ(text, "aÿ\xC2\x81");
    EXPECT_EQ(encoding.Encode(kPath, text), "a\xFF\x81");
  }
}

TEST(TextEncoding, MachineWithoutConversionsStillReadsEverything) {
  CodePages pages;
  pages.japanese = true;
  TextEncoding encoding(pages);
  const std::string text = encoding.Decode(kPath, kRainBytes);
  EXPECT_TRUE(IsValidUtf8(text));
  EXPECT_EQ(encoding.Encode(kPath, text), kRainBytes);
}

TEST(DecodeInPage, TakesThePageByItsWord) {
  const CodePages pages = Pages(kWesternPage, false);
  EXPECT_EQ(DecodeInPage(pages, kJapanesePage, kRainBytes), kRain);
  EXPECT_EQ(DecodeInPage(pages, kUtf8Page, kRain), kRain);
  EXPECT_EQ(DecodeInPage(pages, kUtf8Page, std::string("\xEF\xBB\xBF") + kRain), kRain);
  EXPECT_EQ(DecodeInPage(pages, kUtf8Page, kRainBytes), std::nullopt);
  EXPECT_EQ(DecodeInPage(pages, kWesternPage, "caf\xE9"), "café");
  EXPECT_EQ(DecodeInPage(pages, kJapanesePage, "\xFF"), std::nullopt);
  EXPECT_EQ(DecodeInPage(pages, 437, "a"), std::nullopt) << "a page that the machine does not know";
  EXPECT_EQ(DecodeInPage(CodePages(), kJapanesePage, "a"), std::nullopt) << "a machine that converts nothing";
}

}  // namespace
}  // namespace veldrin
