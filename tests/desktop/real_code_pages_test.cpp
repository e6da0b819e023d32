#include "desktop/real_code_pages.h"

#include "desktop/real_files.h"
#include "tests/desktop/scratch_folder.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

// "鈴鹿 ﾃｽﾄ ソ能表、3速" with CR LF behind: characters whose second byte is a backslash among them.
constexpr char kJapaneseBytes[] =
    "\x97\xE9\x8E\xAD \xC3\xBD\xC4 \x83\x5C\x94\x5C\x95\x5C\x81\x41"
    "3\x91\xAC\r\n";
constexpr char kJapaneseText[] = "鈴鹿 ﾃｽﾄ ソ能表、3速\r\n";

class RealCodePagesTest : public ::testing::Test, protected ScratchFolder {
 protected:
  static void SaveAs(RealFiles& machine, const std::string& path, const std::string& text) {
    const auto writer = machine.OpenForWriting(path);
    writer->Write(text);
    writer->Close();
  }

  RealFiles files{SystemCodePages(false)};
  RealFiles japanese{SystemCodePages(true)};
};

TEST_F(RealCodePagesTest, AJapaneseRemarkGoesBackByteForByte) {
  Put("plan.nx4", kJapaneseBytes);
  const std::string text = japanese.ReadText(PathOf("plan.nx4"));
  EXPECT_EQ(text, kJapaneseText);
  SaveAs(japanese, PathOf("PLAN.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4"), kJapaneseBytes);
}

TEST_F(RealCodePagesTest, AJapaneseFileThatGetsAForeignCharacterBecomesUtf8) {
  Put("plan.nx4", kJapaneseBytes);
  const std::string text = japanese.ReadText(PathOf("plan.nx4")) + "한";
  SaveAs(japanese, PathOf("plan.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4").toStdString(), text);
  EXPECT_EQ(japanese.ReadText(PathOf("plan.nx4")), text);
}

TEST_F(RealCodePagesTest, NewFilesAreUtf8) {
  SaveAs(japanese, PathOf("new.nx4"), kJapaneseText);
  EXPECT_EQ(Bytes("new.nx4").toStdString(), kJapaneseText);
  EXPECT_EQ(japanese.ReadText(PathOf("new.nx4")), kJapaneseText);
}

TEST_F(RealCodePagesTest, AUtf8FileStaysOne) {
  const QByteArray marked = QByteArray("\xEF\xBB\xBF") + kJapaneseText;
  Put("plan.nx4", marked);
  const std::string text = japanese.ReadText(PathOf("plan.nx4"));
  EXPECT_EQ(text, kJapaneseText);
  SaveAs(japanese, PathOf("plan.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4"), marked);
}

TEST_F(RealCodePagesTest, AWesternFileGoesBackByteForByte) {
  const QByteArray bytes =
      "Stra\xDF"
      "e \x80 5 \xB0 \x96\r\n";
  Put("plan.nx4", bytes);
  const std::string text = files.ReadText(PathOf("plan.nx4"));
  EXPECT_EQ(text, "Straße € 5 ° –\r\n");
  SaveAs(files, PathOf("plan.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4"), bytes);
}

TEST_F(RealCodePagesTest, EveryCharacterOfThePageComesBack) {
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

TEST_F(RealCodePagesTest, WhatThePageDoesNotHoldIsToldAsSuch) {
  const CodePages pages = SystemCodePages(true);
  EXPECT_EQ(pages.decode(kJapanesePage, "ab\x81"), std::nullopt);
  EXPECT_EQ(pages.decode(kJapanesePage, "\xFF"), std::nullopt);
  EXPECT_EQ(pages.encode(kJapanesePage, "한"), std::nullopt);
  EXPECT_EQ(pages.encode(kJapanesePage, "é"), std::nullopt);
  EXPECT_EQ(pages.encode(123456, "a"), std::nullopt);
  EXPECT_EQ(pages.decode(123456, "a"), std::nullopt);
  EXPECT_EQ(pages.decode(kJapanesePage, ""), "");
}

TEST_F(RealCodePagesTest, LongTextsAreConvertedWhole) {
  const CodePages pages = SystemCodePages(true);
  std::string bytes;
  std::string text;
  for (int i = 0; i < 5000; ++i) bytes += kJapaneseBytes, text += kJapaneseText;
  EXPECT_EQ(pages.decode(kJapanesePage, bytes), text);
  EXPECT_EQ(pages.encode(kJapanesePage, text), bytes);
}

}  // namespace
}  // namespace veldrin
