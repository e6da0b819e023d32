#include "tests/machine/files/installed_samples.h"

namespace veldrin {
namespace {

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

TEST_F(RealProgramFolderTest, AFolderThatCannotBeMadeIsToldAsSuch) {
  EXPECT_FALSE(FillProgramFolder(In("installed/rollup.wav/own"), In("installed")));
}

TEST_F(RealProgramFolderTest, TheVariableGoesFirst) {
  qputenv("VELDRIN_HOME", In("installed").toUtf8());
  EXPECT_EQ(PathString(ProgramFolder()), In("installed"));
  qputenv("VELDRIN_HOME", In("none/../installed/").toUtf8());
  EXPECT_EQ(PathString(ProgramFolder()), In("installed"));
}

}  // namespace
}  // namespace veldrin
