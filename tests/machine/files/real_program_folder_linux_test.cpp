// Where variables of the desktop name the user's and the system's folders. Windows knows its folders by
// itself, and has no names that are mere bytes.
#include "tests/machine/files/installed_samples.h"

#include <filesystem>

namespace veldrin {
namespace {

TEST_F(RealProgramFolderTest, SamplesAreFoundInTheSystemsDataFolders) {
  Put("elsewhere/bin/veldrin", "");
  Put("second/veldrin/LIST/A.RAT", "");
  qputenv("XDG_DATA_DIRS", (In("first") + ":" + In("second")).toUtf8());
  EXPECT_EQ(InstalledFolder(In("elsewhere/bin")), In("second/veldrin"));
}

TEST_F(RealProgramFolderTest, TheVariablesBytesGoThrough) {
  const std::filesystem::path odd = std::filesystem::path(folder.path().toStdString()) / "\x8a\x43";
  std::filesystem::create_directory(odd);
  qputenv("VELDRIN_HOME", odd.c_str());
  EXPECT_EQ(ProgramFolder(), odd);
  std::filesystem::remove(odd);
}

TEST_F(RealProgramFolderTest, AVariableThatNamesNoFolderIsPassedOver) {
  qputenv("VELDRIN_HOME", In("none").toUtf8());
  qputenv("XDG_DATA_HOME", In("data").toUtf8());
  EXPECT_EQ(PathString(ProgramFolder()), In("data/veldrin"));
  EXPECT_TRUE(QFileInfo(In("data/veldrin/DAT")).isDir());
}

TEST_F(RealProgramFolderTest, WhereTheUsersOwnCannotBeMadeAnotherFolderServes) {
  qputenv("XDG_DATA_HOME", In("installed/rollup.wav").toUtf8());
  EXPECT_TRUE(std::filesystem::is_directory(ProgramFolder()));
}

}  // namespace
}  // namespace veldrin
