// What every test here stands in: an application, and a session of its own.
#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace veldrin {
namespace {

/// Tests run side by side, each in a process of its own. In one session they would count each other as
/// further copies of the program, and leave each other's working files alone.
class Surroundings : public ::testing::Environment {
 public:
  void SetUp() override {
    session_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", session_->path().toUtf8());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override {
    application_.reset();
    session_.reset();
  }

 private:
  int count_ = 1;
  char name_[13] = "test-desktop";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QTemporaryDir> session_;
  std::unique_ptr<QApplication> application_;
};

const ::testing::Environment* const Standing = ::testing::AddGlobalTestEnvironment(new Surroundings);

TEST(SurroundingsTest, TheSessionIsTheTestsOwn) {
  const QFileInfo session(qEnvironmentVariable("XDG_RUNTIME_DIR"));
  EXPECT_TRUE(session.isDir());
  EXPECT_EQ(session.permissions() & 0x0077, QFileDevice::Permissions()) << "open to others";
}

}  // namespace
}  // namespace veldrin
