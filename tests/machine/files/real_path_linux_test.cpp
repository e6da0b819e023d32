// Paths of bytes from one root on, and links on their way. On Windows paths are text and begin with a drive.
#include "machine/files/real_path.h"
#include "machine/real_command_line.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace veldrin {
namespace {

constexpr char kOdd[] = "/tmp/\x8a\x43 %41#?;鈴鹿.nx4";

TEST(RealPath, UrlsOfLocalFilesKeepEveryByte) {
  EXPECT_EQ(BytesOfLocalFile(QUrl::fromEncoded("file:///tmp/%8AC%20%2541%23%3F;%E9%88%B4%E9%B9%BF.nx4")),
            kOdd);
  EXPECT_EQ(BytesOfLocalFile(QUrl("file:///tmp/鈴鹿 A.nx4")), "/tmp/鈴鹿 A.nx4");
  EXPECT_EQ(BytesOfLocalFile(QUrl::fromLocalFile("/tmp/a%41.nx4")), "/tmp/a%41.nx4");
  EXPECT_EQ(BytesOfLocalFile(QUrl("file://localhost/tmp/a")), "/tmp/a");
  EXPECT_EQ(BytesOfLocalFile(QUrl("file://far.example/tmp/a")), "");
  EXPECT_EQ(BytesOfLocalFile(QUrl("https://veldrin.example/a.nx4")), "");
  EXPECT_EQ(BytesOfLocalFile(QUrl()), "");
}

TEST(RealPath, PathsBecomeUrlsAndComeBack) {
  EXPECT_EQ(LocalFileUrl("/tmp/\x8a\x43 1").toEncoded(), "file:///tmp/%8AC%201");
  for (const char* path : {kOdd, "/", "/a b/c", "/tmp/%8A"}) {
    EXPECT_TRUE(LocalFileUrl(path).isLocalFile()) << path;
    EXPECT_EQ(BytesOfLocalFile(LocalFileUrl(path)), path);
  }
}

TEST(RealCommandLine, WordsAreWhatQtLeft) {
  const char* const arguments[] = {"veldrin", "\x8a\x43.nx4", "", nullptr};
  EXPECT_EQ(CommandLineWords(3, arguments), (std::vector<std::string>{"\x8a\x43.nx4", ""}));
  EXPECT_EQ(CommandLineWords(1, arguments), std::vector<std::string>{});
  EXPECT_EQ(CommandLineWords(0, arguments), std::vector<std::string>{});
}

TEST(RealPath, TwoDotsLeadOutOfWhatALinkLeadsTo) {
  namespace fs = std::filesystem;
  const ScratchFolder scratch;
  scratch.Put("far/inside/plan.nx4", "");
  scratch.Put("plan.nx4", "");
  const fs::path here = scratch.folder.path().toStdString();
  fs::create_directory_symlink(here / "far" / "inside", here / "link");
  EXPECT_EQ(WholePath(here / "link" / ".." / "plan.nx4"), here / "far" / "plan.nx4");
  EXPECT_EQ(WholePath(here / "link" / "." / "plan.nx4"), here / "link" / "plan.nx4");
  EXPECT_EQ(WholePath(here / "far" / "inside" / ".." / ".." / "plan.nx4"), here / "plan.nx4");
  EXPECT_EQ(PathOnDisk((here / "link" / ".." / "PLAN.nx4").string()), here / "far" / "PLAN.nx4");
  EXPECT_EQ(PathOnDisk((here / "link" / ".." / "inside").string()), here / "far" / "inside");
}

TEST(RealCommandLine, PathsAreWholeAndKeepTheirBytes) {
  const std::string here = std::filesystem::current_path().string();
  EXPECT_EQ(PathOfWord("\x8a\x43.nx4"), here + "/\x8a\x43.nx4");
  EXPECT_EQ(PathOfWord("./x/../a//b.nx4"), here + "/a/b.nx4");
  EXPECT_EQ(PathOfWord("/x/y/.."), "/x");
  EXPECT_EQ(PathOfWord("/x/y/"), "/x/y");
  EXPECT_EQ(PathOfWord("/"), "/");
  EXPECT_EQ(PathOfWord(""), "");
}

}  // namespace
}  // namespace veldrin
