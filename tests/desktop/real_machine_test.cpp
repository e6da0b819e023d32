#include "desktop/real_machine.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <memory>

namespace veldrin {
namespace {

/// Screen, clipboard and dialogs need an application. Another one that is there serves as well.
class DesktopEnvironment : public ::testing::Environment {
 public:
  void SetUp() override {
    if (QCoreApplication::instance() != nullptr) return;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override { application_.reset(); }

 private:
  int count_ = 1;
  char name_[13] = "test-desktop";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

const ::testing::Environment* const kDesktop = ::testing::AddGlobalTestEnvironment(new DesktopEnvironment);

}  // namespace
}  // namespace veldrin
