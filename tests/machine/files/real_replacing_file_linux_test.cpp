// Files that are replaced on a disk that refuses, through links, and as others own them. The disk's answers
// are put in place of the system's own, which only Linux lets a test do; links and owners are not Windows'
// own either.
#include "tests/machine/files/replaced_file.h"

#include <cerrno>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// What the disk answers when it is told to keep a file; 0 for its own answer.
int diskAnswer = 0;

}  // namespace

// Stands before the system's own for everything in this test.
extern "C" int fsync(int file) {
  if (diskAnswer == 0) return static_cast<int>(syscall(SYS_fsync, file));
  errno = diskAnswer;
  return -1;
}
extern "C" int fdatasync(int file) {
  return fsync(file);
}

namespace veldrin {
namespace {

class ReplacingFileOnLinuxTest : public ReplacingFileTest {
 protected:
  void TearDown() override { diskAnswer = 0; }

  struct stat StatusOf(const std::string& name) const {
    struct stat status = {};
    lstat(In(name).c_str(), &status);
    return status;
  }
};

TEST_F(ReplacingFileOnLinuxTest, WhatTheDiskDoesNotTakeIsAFaultAndLeavesTheOldFile) {
  Put("plan.nx4", "old");
  const struct {
    int answer;
    int fault;
  } cases[] = {{EIO, kFaultDriveNotReady}, {ENOSPC, kFaultDiskFull}, {EDQUOT, kFaultDiskFull}};
  for (const auto& [answer, fault] : cases) {
    diskAnswer = answer;
    EXPECT_EQ(Replace("plan.nx4", "new"), fault) << answer;
    EXPECT_EQ(Bytes("plan.nx4"), "old") << answer;
    EXPECT_EQ(Names(), QStringList("plan.nx4")) << answer;
  }
}

TEST_F(ReplacingFileOnLinuxTest, AFileSystemThatKnowsNoSuchOrderServesAllTheSame) {
  for (const int answer : {EINVAL, ENOTSUP}) {
    diskAnswer = answer;
    EXPECT_EQ(Replace("plan.nx4", "new"), 0) << answer;
    EXPECT_EQ(Bytes("plan.nx4"), "new") << answer;
    fs::remove(In("plan.nx4"));
  }
}

TEST_F(ReplacingFileOnLinuxTest, LinksAreFollowedToTheirEnd) {
  fs::create_directory(In("far"));
  fs::create_symlink("far/plan.nx4", In("second"));
  fs::create_symlink(In("second"), In("first"));
  EXPECT_EQ(Replace("first", "new"), 0);
  EXPECT_EQ(Bytes("far/plan.nx4"), "new");
  EXPECT_TRUE(S_ISLNK(StatusOf("first").st_mode));
  EXPECT_TRUE(S_ISLNK(StatusOf("second").st_mode));
  EXPECT_EQ(QDir(folder.path() + "/far").entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList("plan.nx4"));
}

TEST_F(ReplacingFileOnLinuxTest, ALinkThatLeadsNowhereIsAFault) {
  fs::create_symlink("none/plan.nx4", In("away"));
  fs::create_symlink("round", In("round"));
  EXPECT_EQ(Replace("away", "new"), kFaultPathNotFound);
  EXPECT_EQ(Replace("round", "new"), kFaultPathAccess);
}

TEST_F(ReplacingFileOnLinuxTest, TheFileStaysItsOwners) {
  if (geteuid() != 0) GTEST_SKIP() << "only the administrator writes files of others";
  constexpr uid_t kOwner = 1234;
  constexpr gid_t kGroup = 2345;
  Put("plan.nx4", "old");
  ASSERT_EQ(chown(In("plan.nx4").c_str(), kOwner, kGroup), 0);
  ASSERT_EQ(chmod(In("plan.nx4").c_str(), 0660), 0);
  EXPECT_EQ(Replace("plan.nx4", "new"), 0);
  const struct stat status = StatusOf("plan.nx4");
  EXPECT_EQ(status.st_uid, kOwner);
  EXPECT_EQ(status.st_gid, kGroup);
  EXPECT_EQ(status.st_mode & 0777, 0660U);
}

}  // namespace
}  // namespace veldrin
