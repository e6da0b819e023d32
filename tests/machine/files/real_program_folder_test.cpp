#include "machine/files/real_program_folder.h"

#include "machine/files/real_path.h"
#include "tests/desktop/scratch_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace veldrin {
namespace {

class RealProgramFolderTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void SetUp() override {
    Put("installed/LIST/NX4.RAT", "list");
    Put("installed/LIST/NX4.CMB", "records");
    Put("installed/LIST/Extra/README", "deep");
    Put("installed/DAT/Sample.nx4", "plan");
    Put("installed/rollup.wav", "sound");
    Put("installed/veldrin", "the program itself");
  }
  void TearDown() override {
    qunsetenv("VELDRIN_HOME");
    for (const char* name : {"XDG_DATA_HOME", "XDG_DATA_DIRS"}) qunsetenv(name);
  }
};

TEST_F(RealProgramFolderTest, TheFirstRunCopiesWhatWasInstalled) {
  QFile::setPermissions(In("installed/LIST/NX4.RAT"), QFileDevice::ReadOwner | QFileDevice::ReadOther);
  EXPECT_TRUE(FillProgramFolder(In("own/veldrin"), In("installed")));
  EXPECT_EQ(Bytes("own/veldrin/LIST/NX4.RAT"), "list");
  EXPECT_EQ(Bytes("own/veldrin/LIST/NX4.CMB"), "records");
  EXPECT_EQ(Bytes("own/veldrin/LIST/Extra/README"), "deep");
  EXPECT_EQ(Bytes("own/veldrin/DAT/Sample.nx4"), "plan");
  EXPECT_EQ(Bytes("own/veldrin/rollup.wav"), "sound");
  EXPECT_FALSE(QFile::exists(In("own/veldrin/veldrin")));
  EXPECT_TRUE(QFile::permissions(In("own/veldrin/LIST/NX4.RAT")) & QFileDevice::WriteOwner);
}

TEST_F(RealProgramFolderTest, LaterRunsLeaveTheUsersFilesAlone) {
  FillProgramFolder(In("own"), In("installed"));
  Put("own/DAT/Sample.nx4", "changed");
  QFile::remove(In("own/LIST/NX4.CMB"));
  Put("installed/unroll.wav", "newer");
  EXPECT_TRUE(FillProgramFolder(In("own"), In("installed")));
  EXPECT_EQ(Bytes("own/DAT/Sample.nx4"), "changed");
  EXPECT_FALSE(QFile::exists(In("own/LIST/NX4.CMB")));
  EXPECT_EQ(Bytes("own/unroll.wav"), "newer");
}

TEST_F(RealProgramFolderTest, BothFoldersAreThereWithoutAnythingInstalled) {
  EXPECT_TRUE(FillProgramFolder(In("own"), ""));
  EXPECT_TRUE(QFileInfo(In("own/LIST")).isDir());
  EXPECT_TRUE(QFileInfo(In("own/DAT")).isDir());
}

TEST_F(RealProgramFolderTest, SamplesThatWereInstalledLaterAreCopiedWhereThereIsNoList) {
  FillProgramFolder(In("own"), "");
  EXPECT_TRUE(FillProgramFolder(In("own"), In("installed")));
  EXPECT_EQ(Bytes("own/LIST/NX4.RAT"), "list");
  EXPECT_EQ(Bytes("own/DAT/Sample.nx4"), "plan");
}

TEST_F(RealProgramFolderTest, PlansThatTheUserDeletedStayDeleted) {
  FillProgramFolder(In("own"), In("installed"));
  QFile::remove(In("own/DAT/Sample.nx4"));
  FillProgramFolder(In("own"), In("installed"));
  EXPECT_FALSE(QFile::exists(In("own/DAT/Sample.nx4")));
}

TEST_F(RealProgramFolderTest, PlansWithoutAListAreNotMixedWithTheSamples) {
  Put("own/DAT/Mine.nx4", "mine");
  FillProgramFolder(In("own"), In("installed"));
  EXPECT_EQ(Bytes("own/LIST/NX4.RAT"), "list");
  EXPECT_FALSE(QFile::exists(In("own/DAT/Sample.nx4")));
}

TEST_F(RealProgramFolderTest, SamplesAreFoundWhereverTheProgramWasPut) {
  Put("beside/LIST/A.RAT", "");
  EXPECT_EQ(InstalledFolder(In("beside")), In("beside"));
  Put("copied/share/veldrin/LIST/A.RAT", "");
  EXPECT_EQ(InstalledFolder(In("copied")), In("copied/share/veldrin"));
  Put("prefix/share/veldrin/LIST/A.RAT", "");
  Put("prefix/bin/veldrin", "");
  EXPECT_EQ(InstalledFolder(In("prefix/bin")), In("prefix/share/veldrin"));
  Put("prefix/build/bin/veldrin", "");
  EXPECT_EQ(InstalledFolder(In("prefix/build/bin")), In("prefix/share/veldrin"));
  Put("prefix/build/release/bin/veldrin", "");
  EXPECT_EQ(InstalledFolder(In("prefix/build/release/bin")), In("prefix/share/veldrin"));
}

TEST_F(RealProgramFolderTest, SamplesAreFoundInTheSystemsDataFolders) {
  Put("elsewhere/bin/veldrin", "");
  Put("second/veldrin/LIST/A.RAT", "");
  qputenv("XDG_DATA_DIRS", (In("first") + ":" + In("second")).toUtf8());
  EXPECT_EQ(InstalledFolder(In("elsewhere/bin")), In("second/veldrin"));
}

TEST_F(RealProgramFolderTest, AFolderThatCannotBeMadeIsToldAsSuch) {
  EXPECT_FALSE(FillProgramFolder(In("installed/rollup.wav/own"), In("installed")));
}

TEST_F(RealProgramFolderTest, TheVariableGoesFirst) {
  qputenv("VELDRIN_HOME", In("installed").toUtf8());
  EXPECT_EQ(PathString(ProgramFolder()), In("installed"));
  qputenv("VELDRIN_HOME", In("none/../installed/").toUtf8());
  EXPECT_EQ(PathString(ProgramFolder()), In("installed"));
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
