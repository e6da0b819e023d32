// What every test with Qt stands in: an application, and a session of its own.
#pragma once

#include "tests/own_user.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace veldrin {

/// Tests run side by side, each in a process of its own. In one session they would count each other as
/// further copies of the program, and leave each other's working files alone.
class Surroundings : public ::testing::Environment {
 public:
  void SetUp() override {
    session_ = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", session_->path().toUtf8());
    qputenv("XDG_STATE_HOME", (session_->path() + "/state").toUtf8());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    user_ = std::make_unique<OwnUser>();
    application_ = std::make_unique<QApplication>(count_, arguments_);
  }
  void TearDown() override {
    application_.reset();
    user_.reset();
    session_.reset();
  }

 private:
  int count_ = 1;
  char name_[8] = "test-qt";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QTemporaryDir> session_;
  std::unique_ptr<OwnUser> user_;
  std::unique_ptr<QApplication> application_;
};

}  // namespace veldrin
