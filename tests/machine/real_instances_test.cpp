#include "machine/real_instances.h"

#include "tests/desktop/child_process.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <csignal>
#include <memory>
#include <unistd.h>

namespace veldrin {
namespace {

/// A copy of the program in a process of its own, which runs until it is killed.
class OtherCopy {
 public:
  explicit OtherCopy(const QString& locks) {
    int ready[2] = {};
    if (pipe(ready) != 0) return;
    process_ = StartChild([&] {
      const RealInstances instances(locks);
      const char sign = 'r';
      if (write(ready[1], &sign, 1) == 1) pause();
      return 0;
    });
    // Only the child can write now, so that its death ends the reading.
    close(ready[1]);
    char sign = 0;
    running_ = read(ready[0], &sign, 1) == 1;
    close(ready[0]);
  }
  OtherCopy(const OtherCopy&) = delete;
  OtherCopy& operator=(const OtherCopy&) = delete;
  ~OtherCopy() { Crash(); }

  bool IsRunning() const { return running_; }

  /// Nothing of the process gets to clean up.
  void Crash() {
    if (!running_) return;
    kill(process_, SIGKILL);
    WaitForChild(process_);
    running_ = false;
  }

 private:
  pid_t process_ = 0;
  bool running_ = false;
};

class RealInstancesTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  QString locks = folder.path() + "/";
};

TEST_F(RealInstancesTest, TheOnlyCopyHasNoOthers) {
  const RealInstances instances(locks);
  EXPECT_EQ(instances.Others(), 0);
}

TEST_F(RealInstancesTest, OtherProcessesCount) {
  OtherCopy first(locks);
  ASSERT_TRUE(first.IsRunning());
  const RealInstances instances(locks);
  EXPECT_EQ(instances.Others(), 1);
  OtherCopy second(locks);
  ASSERT_TRUE(second.IsRunning());
  EXPECT_EQ(instances.Others(), 2);
  EXPECT_EQ(instances.Others(), 2);
}

TEST_F(RealInstancesTest, ACrashFreesItsPlace) {
  OtherCopy other(locks);
  ASSERT_TRUE(other.IsRunning());
  const RealInstances instances(locks);
  EXPECT_EQ(instances.Others(), 1);
  other.Crash();
  EXPECT_EQ(instances.Others(), 0);
  const RealInstances next(locks);
  EXPECT_EQ(instances.Others(), 1);
}

TEST_F(RealInstancesTest, ACopyThatEndsIsGone) {
  const RealInstances instances(locks);
  auto other = std::make_unique<RealInstances>(locks);
  EXPECT_EQ(instances.Others(), 1);
  other.reset();
  EXPECT_EQ(instances.Others(), 0);
}

TEST_F(RealInstancesTest, LocksStandInTheFolderOfTheSession) {
  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
  EXPECT_EQ(RealInstances::UsersLocks(), folder.path() + "/veldrin-");
  before.isEmpty() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", before);
}

TEST_F(RealInstancesTest, WhereNoLockCanBeTheProgramGoesOnAlone) {
  const RealInstances instances(folder.path() + "/none/");
  EXPECT_EQ(instances.Others(), 0);
}

}  // namespace
}  // namespace veldrin
