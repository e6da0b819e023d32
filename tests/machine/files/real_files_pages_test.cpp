// Texts in code pages on the disk: what was read in a page goes back in it.
#include "machine/files/real_files.h"
#include "platform/system_code_pages.h"
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

class RealFilesPagesTest : public ::testing::Test, protected ScratchFolder {
 protected:
  static void SaveAs(RealFiles& machine, const std::string& path, const std::string& text) {
    const auto writer = machine.OpenForWriting(path);
    writer->Write(text);
    writer->Close();
  }

  /// A system of UTF-8, whatever this one's page is.
  static CodePages Pages(bool japanese) {
    CodePages pages = SystemCodePages(japanese);
    pages.systemPage = kUtf8Page;
    return pages;
  }

  RealFiles files{Pages(false)};
  RealFiles japanese{Pages(true)};
};

TEST_F(RealFilesPagesTest, AJapaneseRemarkGoesBackByteForByte) {
  Put("plan.nx4", kJapaneseBytes);
  const std::string text = japanese.ReadText(PathOf("plan.nx4"));
  EXPECT_EQ(text, kJapaneseText);
  SaveAs(japanese, PathOf("PLAN.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4"), kJapaneseBytes);
}

TEST_F(RealFilesPagesTest, AJapaneseFileThatGetsAForeignCharacterBecomesUtf8) {
  Put("plan.nx4", kJapaneseBytes);
  const std::string text = japanese.ReadText(PathOf("plan.nx4")) + "한";
  SaveAs(japanese, PathOf("plan.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4").toStdString(), text);
  EXPECT_EQ(japanese.ReadText(PathOf("plan.nx4")), text);
}

TEST_F(RealFilesPagesTest, NewFilesAreUtf8) {
  SaveAs(japanese, PathOf("new.nx4"), kJapaneseText);
  EXPECT_EQ(Bytes("new.nx4").toStdString(), kJapaneseText);
  EXPECT_EQ(japanese.ReadText(PathOf("new.nx4")), kJapaneseText);
}

TEST_F(RealFilesPagesTest, AUtf8FileStaysOne) {
  const QByteArray marked = QByteArray("\xEF\xBB\xBF") + kJapaneseText;
  Put("plan.nx4", marked);
  const std::string text = japanese.ReadText(PathOf("plan.nx4"));
  EXPECT_EQ(text, kJapaneseText);
  SaveAs(japanese, PathOf("plan.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4"), marked);
}

TEST_F(RealFilesPagesTest, AWesternFileGoesBackByteForByte) {
  const QByteArray bytes =
      "Stra\xDF"
      "e \x80 5 \xB0 \x96\r\n";
  Put("plan.nx4", bytes);
  const std::string text = files.ReadText(PathOf("plan.nx4"));
  EXPECT_EQ(text, "Straße € 5 ° –\r\n");
  SaveAs(files, PathOf("plan.nx4"), text);
  EXPECT_EQ(Bytes("plan.nx4"), bytes);
}

}  // namespace
}  // namespace veldrin
