#include "machine/real_instances.h"

#include "tests/desktop/other_half.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

namespace veldrin {
namespace {

/// A copy of the program in a process of its own, which runs until it is killed.
class OtherCopy {
 public:
  explicit OtherCopy(const QString& locks)
      : process_("DISABLED_RealInstancesCopy.Runs", {locks}), running_(process_.AwaitReady()) {}

  bool IsRunning() const { return running_; }
  /// Nothing of the process gets to clean up.
  void Crash() { process_.Kill(); }

 private:
  OtherHalf process_;
  bool running_;
};

TEST(DISABLED_RealInstancesCopy, Runs) {
  const RealInstances instances(OtherHalf::Words().front());
  OtherHalf::TellReady();
  for (;;) std::this_thread::sleep_for(std::chrono::seconds(1));
}

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

TEST_F(RealInstancesTest, WhereNoLockCanBeTheProgramGoesOnAlone) {
  const RealInstances instances(folder.path() + "/none/");
  EXPECT_EQ(instances.Others(), 0);
}

}  // namespace
}  // namespace veldrin
