// Locks that a crash left behind, whose process number belongs to somebody else by now.
#include "machine/real_lock.h"

#include "machine/files/real_keep_folder.h"
#include "machine/real_instances.h"
#include "tests/desktop/scratch_folder.h"

#include <QDateTime>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

class RealLockTest : public ::testing::Test, protected ScratchFolder {
 protected:
  /// A lock of a copy that crashed. Its number and name have come to be those of this process.
  void PutLeftLock(const QString& name) {
    QLockFile lock(In(name));
    ASSERT_TRUE(lock.tryLock(0));
    const QByteArray bytes = Bytes(name);
    ASSERT_FALSE(bytes.isEmpty());
    lock.unlock();
    Put(name, bytes);
    SetBack(name);
  }

  /// The time of a file is that of a crash before this process began.
  void SetBack(const QString& name) {
    QFile file(In(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFileDevice::FileModificationTime));
  }

  bool TakesAnew(const QString& name) {
    QLockFile lock(In(name));
    lock.setStaleLockTime(0);
    return TryLock(lock);
  }
};

TEST_F(RealLockTest, OneThatNobodyHoldsIsTaken) {
  PutLeftLock("a.lock");
  QLockFile qts(In("a.lock"));
  qts.setStaleLockTime(0);
  EXPECT_FALSE(qts.tryLock(0)) << "by its number and name alone it would be held";
  EXPECT_TRUE(TakesAnew("a.lock"));
}

TEST_F(RealLockTest, OneThatIsHeldStays) {
  QLockFile held(In("a.lock"));
  held.setStaleLockTime(0);
  ASSERT_TRUE(TryLock(held));
  EXPECT_FALSE(TakesAnew("a.lock"));
  EXPECT_FALSE(TakesAnew("a.lock")) << "asking has not loosened it";
  held.unlock();
  EXPECT_TRUE(TakesAnew("a.lock"));
}

#ifndef _WIN32
// Its owner may be about to delete it, and would delete what somebody else has put in its place. On Windows
// nobody deletes what another has open.
TEST_F(RealLockTest, OneThatIsBeingGivenBackIsLeftToItsOwner) {
  QLockFile lock(In("a.lock"));
  ASSERT_TRUE(lock.tryLock(0));
  const QByteArray bytes = Bytes("a.lock");
  lock.unlock();
  Put("a.lock", bytes);
  EXPECT_FALSE(TakesAnew("a.lock"));
  EXPECT_EQ(Bytes("a.lock"), bytes);
}

// There the system knows of all machines.
TEST_F(RealLockTest, OneOfAnotherMachineStays) {
  PutLeftLock("a.lock");
  QList<QByteArray> lines = Bytes("a.lock").split('\n');
  lines[2] = "another-machine";
  if (lines.size() > 3) lines[3] = "0123456789abcdef";
  Put("a.lock", lines.join('\n'));
  SetBack("a.lock");
  EXPECT_FALSE(TakesAnew("a.lock"));
}
#endif

TEST_F(RealLockTest, ALeftLockIsNoRunningCopy) {
  PutLeftLock("instance-0.lock");
  PutLeftLock("instance-1.lock");
  const RealInstances instances(In(""));
  EXPECT_TRUE(instances.Counts());
  EXPECT_EQ(instances.Others(), 0);
  const RealInstances second(In(""));
  EXPECT_EQ(second.Others(), 1);
}

TEST_F(RealLockTest, AKeptPlanWithALeftLockIsForWhoeverAsks) {
  PutLeftLock("one.lock");
  RealKeepFolder folder(this->folder.path());
  const auto claim = folder.Claim("one");
  EXPECT_NE(claim, nullptr);
  EXPECT_EQ(folder.Claim("one"), nullptr);
}

}  // namespace
}  // namespace veldrin
