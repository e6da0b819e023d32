// What is written to the disk: whole or not at all.
#include "platform/system_code_pages.h"
#include "tests/desktop/other_half.h"
#include "tests/machine/files/files_in_folder.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(RealFilesTest, WhatIsWrittenStandsAfterCloseOnly) {
  Put("plan.nx4", "old");
  const auto writer = files.OpenForWriting(PathOf("plan.nx4"));
  writer->Write("new");
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  writer->Close();
  EXPECT_EQ(Bytes("plan.nx4"), "new");
  EXPECT_EQ(Guarded([&] { writer->Write("more"); }), kFaultBadFileName);
  writer->Close();
  EXPECT_EQ(Bytes("plan.nx4"), "new");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST_F(RealFilesTest, AWriterThatIsDroppedLeavesTheFileAndNothingElse) {
  Put("plan.nx4", "old");
  files.OpenForWriting(PathOf("plan.nx4"))->Write("new");
  files.OpenForWriting(PathOf("other.nx4"))->Write("new");
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST_F(RealFilesTest, AProcessThatDiesWhileWritingLeavesTheOldFileWhole) {
  Put("plan.nx4", "old");
  OtherHalf writer("DISABLED_RealFilesWriter.DiesWhileWriting", {In("plan.nx4")});
  writer.AwaitEnd();
  EXPECT_TRUE(writer.Died());
  EXPECT_EQ(Bytes("plan.nx4"), "old");
}

TEST(DISABLED_RealFilesWriter, DiesWhileWriting) {
  RealFiles files{SystemCodePages(false)};
  const auto writer = files.OpenForWriting(OtherHalf::Words().front().toStdString());
  writer->Write("half of a pl");
  DieAtOnce();
}

TEST_F(RealFilesTest, AReadOnlyFileIsNeitherReplacedNorDeleted) {
  Put("plan.nx4", "old");
  ASSERT_TRUE(QFile::setPermissions(In("plan.nx4"), QFileDevice::ReadOwner | QFileDevice::ReadUser));
  EXPECT_EQ(Guarded([&] { files.OpenForWriting(PathOf("PLAN.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(Guarded([&] { files.Delete(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  QFile::setPermissions(In("plan.nx4"), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

}  // namespace
}  // namespace veldrin
