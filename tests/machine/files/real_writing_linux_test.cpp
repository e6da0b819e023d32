// What is written to a disk with Linux's names, rights and links. On Windows names are UTF-16, folders deny
// nothing by their attribute, and a limit on the size of files does not stand for a full disk.
#include "tests/machine/files/files_in_folder.h"
#include "tests/machine/plain_user.h"

#include <csignal>
#include <fstream>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace veldrin {
namespace {

TEST_F(RealFilesTest, NamesThatAreNoUtf8AreReadAndWritten) {
  const std::string name = "\x8a\x43.nx4";
  std::ofstream(PathOf(name)) << "a";
  EXPECT_EQ(files.FileNames(PathOf(""), "*.nx4"), std::vector<std::string>{name});
  EXPECT_EQ(files.ReadText(PathOf(name)), "a");
  Save(name, "b");
  EXPECT_EQ(files.ReadText(PathOf(name)), "b");
  files.Delete(PathOf(name));
  EXPECT_FALSE(files.FileExists(PathOf(name)));
  const std::string fresh = "\x8a\x44.nx4";
  Save(fresh, "c");
  EXPECT_EQ(files.FileNames(PathOf(""), "*"), std::vector<std::string>{fresh});
  files.Delete(PathOf(fresh));
}

TEST_F(RealFilesTest, RightsAndLinksStayAsTheyWere) {
  Put("plan.nx4", "old");
  ASSERT_EQ(chmod(PathOf("plan.nx4").c_str(), 0640), 0);
  ASSERT_EQ(symlink("plan.nx4", PathOf("link.nx4").c_str()), 0);
  Save("link.nx4", "new");
  EXPECT_EQ(Bytes("plan.nx4"), "new");
  struct stat status = {};
  ASSERT_EQ(lstat(PathOf("link.nx4").c_str(), &status), 0);
  EXPECT_TRUE(S_ISLNK(status.st_mode));
  ASSERT_EQ(stat(PathOf("plan.nx4").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640U);
  Save("new.nx4", "new");
  const mode_t mask = umask(0);
  umask(mask);
  ASSERT_EQ(stat(PathOf("new.nx4").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0666 & ~mask);
}

TEST_F(RealFilesTest, AFullDiskIsFault61AndLeavesTheOldFileWhole) {
  Put("plan.nx4", "old");
  int written = 0;
  int closed = 0;
  // A limit on the size of files stands for the end of the disk.
  signal(SIGXFSZ, SIG_IGN);
  rlimit before = {};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit full = {4096, before.rlim_max};
  {
    const auto writer = files.OpenForWriting(PathOf("plan.nx4"));
    setrlimit(RLIMIT_FSIZE, &full);
    written = Guarded([&] { writer->Write(std::string(100000, 'x')); });
    closed = Guarded([&] { writer->Close(); });
    setrlimit(RLIMIT_FSIZE, &before);
  }
  EXPECT_EQ(written, kFaultDiskFull);
  EXPECT_EQ(closed, kFaultDiskFull);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  EXPECT_EQ(Names(), QStringList("plan.nx4"));
}

TEST_F(RealFilesTest, AFolderThatDeniesWritingIsFault70) {
  Put("plan.nx4", "old");
  ASSERT_EQ(chmod(folder.path().toLocal8Bit().constData(), 0555), 0);
  const auto fault = [&](const std::function<void()>& operation) {
    return AsPlainUser([&] { return Guarded(operation); });
  };
  EXPECT_EQ(fault([&] { files.OpenForWriting(PathOf("new.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(fault([&] { files.OpenForWriting(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(fault([&] { files.Delete(PathOf("plan.nx4")); }), kFaultPermissionDenied);
  EXPECT_EQ(Bytes("plan.nx4"), "old");
  chmod(folder.path().toLocal8Bit().constData(), 0700);
}

TEST_F(RealFilesTest, WhatMayNotBeReadIsFault70) {
  Put("plan.nx4", "old");
  MakeFolder("closed");
  chmod(folder.path().toLocal8Bit().constData(), 0755);
  chmod(PathOf("plan.nx4").c_str(), 0000);
  chmod(PathOf("closed").c_str(), 0000);
  EXPECT_EQ(AsPlainUser([&] { return Guarded([&] { files.ReadText(PathOf("plan.nx4")); }); }),
            kFaultPermissionDenied);
  EXPECT_EQ(AsPlainUser([&] { return Guarded([&] { files.ResolveFolder(PathOf("closed")); }); }),
            kFaultPermissionDenied);
  EXPECT_EQ(AsPlainUser([&] { return files.FileExists(PathOf("closed/x")) ? 1 : 0; }), 0);
}

}  // namespace
}  // namespace veldrin
