// Paths as Windows writes them, as URLs and as words of a command line.
#include "machine/files/real_path.h"
#include "machine/real_command_line.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace veldrin {
namespace {

TEST(RealPath, UrlsOfLocalFilesAndPathsAreOneAndTheSame) {
  EXPECT_EQ(BytesOfLocalFile(QUrl("file:///C:/plans/鈴鹿 A.nx4")), "C:\\plans\\鈴鹿 A.nx4");
  EXPECT_EQ(BytesOfLocalFile(QUrl::fromEncoded("file:///C:/a%2541.nx4")), "C:\\a%41.nx4");
  EXPECT_EQ(BytesOfLocalFile(QUrl("https://veldrin.example/a.nx4")), "");
  EXPECT_EQ(BytesOfLocalFile(QUrl()), "");
  for (const char* path : {"C:\\a b\\鈴鹿;#?.nx4", "C:\\"}) {
    EXPECT_TRUE(LocalFileUrl(path).isLocalFile()) << path;
    EXPECT_EQ(BytesOfLocalFile(LocalFileUrl(path)), path);
  }
}

TEST(RealCommandLine, PathsAreWhole) {
  const std::string here = QString::fromStdWString(std::filesystem::current_path().wstring()).toStdString();
  EXPECT_EQ(PathOfWord("鈴鹿.nx4"), here + "\\鈴鹿.nx4");
  EXPECT_EQ(PathOfWord(".\\x\\..\\a\\b.nx4"), here + "\\a\\b.nx4");
  EXPECT_EQ(PathOfWord("C:\\x\\y\\.."), "C:\\x");
  EXPECT_EQ(PathOfWord("C:/x/y/b.nx4"), "C:\\x\\y\\b.nx4");
  EXPECT_EQ(PathOfWord(""), "");
}

}  // namespace
}  // namespace veldrin
