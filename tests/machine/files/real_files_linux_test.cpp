// Paths from one root on, names that differ in case alone, a home folder in place of drives: none of it is
// Windows'.
#include "tests/machine/files/files_in_folder.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

TEST_F(RealFilesTest, NamesAndFilesThatTheSystemKnowsNothingOf) {
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf(std::string(300, 'n'))); }), kFaultBadFileName);
  EXPECT_EQ(Guarded([&] { files.ReadText("/dev/zero"); }), kFaultPathAccess);
  EXPECT_EQ(files.LongName("/"), "");
}

TEST_F(RealFilesTest, PathsFollowTheSystem) {
  EXPECT_EQ(files.Rules().separator, '/');
  EXPECT_EQ(files.Rules().rootLength, 0);
}

TEST_F(RealFilesTest, TheSpellingOfAPathIsSeenInTheList) {
  Put("Plan.nx4", "a");
  files.Respell(PathOf("PLAN.nx4"));
  EXPECT_EQ(Names(), QStringList("PLAN.nx4"));
  files.Respell(PathOf("PLAN.nx4"));
  EXPECT_EQ(Names(), QStringList("PLAN.nx4"));
  EXPECT_EQ(Bytes("PLAN.nx4"), "a");
  EXPECT_EQ(Guarded([&] { files.Respell(PathOf("none.nx4")); }), kFaultFileNotFound);
}

TEST_F(RealFilesTest, TheNameAsWrittenGoesFirst) {
  Put("PLAN.nx4", "capitals");
  Put("plan.nx4", "small");
  EXPECT_EQ(files.ReadText(PathOf("plan.nx4")), "small");
  EXPECT_EQ(files.ReadText(PathOf("PLAN.nx4")), "capitals");
  EXPECT_EQ(files.ReadText(PathOf("Plan.nx4")), "capitals");
  EXPECT_EQ(files.FileNames(PathOf(""), "*"), (std::vector<std::string>{"PLAN.nx4", "plan.nx4"}));
}

TEST_F(RealFilesTest, FoldersAreSpelledFromTheRootOn) {
  const std::string before = files.CurrentFolder();
  MakeFolder("Sub/Deep");
  files.SetCurrentFolder(PathOf("SUB"));
  EXPECT_EQ(files.CurrentFolder(), PathOf("Sub"));
  EXPECT_EQ(files.ResolveFolder("deep"), PathOf("Sub/Deep"));
  EXPECT_EQ(files.ResolveFolder("."), PathOf("Sub"));
  EXPECT_EQ(files.ResolveFolder("deep/../.."), folder.path().toStdString());
  EXPECT_EQ(files.ResolveFolder(PathOf("sub/deep/")), PathOf("Sub/Deep"));
  EXPECT_EQ(files.ResolveFolder("/"), "/");
  EXPECT_EQ(files.ResolveFolder("/../.."), "/");
  files.SetCurrentFolder(before);
}

TEST_F(RealFilesTest, ACurrentFolderThatIsGoneIsTheRoot) {
  const std::string before = files.CurrentFolder();
  MakeFolder("gone");
  files.SetCurrentFolder(PathOf("gone"));
  QDir(folder.path()).rmdir("gone");
  EXPECT_EQ(files.CurrentFolder(), "/");
  files.SetCurrentFolder(before);
}

TEST_F(RealFilesTest, DrivesAreTheRootAndTheHomeFolder) {
  const std::vector<std::string> drives = files.Drives();
  ASSERT_FALSE(drives.empty());
  EXPECT_EQ(drives.front(), "/");
  EXPECT_EQ(files.DriveOf("/usr/share"), "/");
  EXPECT_EQ(files.DriveOf("/"), "/");
  const std::string home = QDir::homePath().toStdString();
  EXPECT_EQ(files.DriveOf(home), home);
  EXPECT_EQ(files.DriveOf(home + "/x/y"), home);
  EXPECT_EQ(files.DriveOf(home + "x"), "/");
}

}  // namespace
}  // namespace veldrin
