// Paths and drives as Windows has them, and files that another program has open.
#include "tests/machine/files/files_in_folder.h"

#include <algorithm>
#include <string>
#include <vector>
#include <windows.h>

namespace veldrin {
namespace {

TEST_F(RealFilesTest, PathsFollowTheSystem) {
  EXPECT_EQ(files.Rules().separator, '\\');
  EXPECT_EQ(files.Rules().rootLength, 2);
}

TEST_F(RealFilesTest, NamesThatDifferInCaseAreOne) {
  Put("PLAN.nx4", "first");
  Put("plan.nx4", "second");
  EXPECT_EQ(Names(), QStringList("PLAN.nx4"));
  EXPECT_EQ(files.ReadText(PathOf("Plan.nx4")), "second");
}

TEST_F(RealFilesTest, FoldersAreSpelledFromTheirDriveOn) {
  const std::string before = files.CurrentFolder();
  MakeFolder("Sub/Deep");
  files.SetCurrentFolder(PathOf("SUB"));
  EXPECT_EQ(files.CurrentFolder(), PathOf("Sub"));
  EXPECT_EQ(files.ResolveFolder("deep"), PathOf("Sub/Deep"));
  EXPECT_EQ(files.ResolveFolder("."), PathOf("Sub"));
  EXPECT_EQ(files.ResolveFolder(PathOf("sub/deep/")), PathOf("Sub/Deep"));
  EXPECT_EQ(files.ResolveFolder("c:\\"), "C:\\");
  EXPECT_EQ(files.ResolveFolder("C:\\..\\.."), "C:\\");
  files.SetCurrentFolder(before);
}

TEST_F(RealFilesTest, DrivesHaveLetters) {
  const std::vector<std::string> drives = files.Drives();
  EXPECT_NE(std::find(drives.begin(), drives.end(), "C:"), drives.end());
  EXPECT_EQ(files.DriveOf("C:\\VELDRIN\\LIST"), "C:");
}

TEST_F(RealFilesTest, WhatAnotherProgramHasForItselfIsFault70) {
  Put("plan.nx4", "old");
  const HANDLE other = CreateFileW(QDir::toNativeSeparators(In("plan.nx4")).toStdWString().c_str(),
                                   GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  EXPECT_EQ(Guarded([&] { files.ReadText(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_NE(Guarded([&] { Save("plan.nx4", "new"); }), 0);
  EXPECT_EQ(Guarded([&] { files.Delete(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  CloseHandle(other);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

}  // namespace
}  // namespace veldrin
