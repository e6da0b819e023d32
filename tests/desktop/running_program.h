// The desktop program as it runs, for tests that look into it.
#pragma once

#include "desktop/desktop_program.h"
#include "tests/desktop/program_folders.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

namespace veldrin {

/// The program as it runs on the desktop, in folders of its own. A test that hangs ends after a while.
class RunningProgramTest : public ::testing::Test, protected ProgramFolders {
 protected:
  void SetUp() override { program_ = std::make_unique<DesktopProgram>(); }
  void TearDown() override { program_.reset(); }

  DesktopProgram& Desktop() { return *program_; }
  Program& Main() { return *program_->program; }

  /// Calls `then` as soon as `ready` holds.
  static void When(const std::function<bool()>& ready, const std::function<void()>& then) {
    QTimer::singleShot(5, qApp, [=] { ready() ? then() : When(ready, then); });
  }

  /// Runs the program and calls `work` when the main window has come up.
  int Run(const std::string& commandLine, const std::function<void()>& work) {
    When([this] { return Main().ended || (Main().eventDepth == 0 && Main().form2.Visible); }, work);
    return Finish(commandLine);
  }

  int Finish(const std::string& commandLine) {
    QTimer guard;
    QObject::connect(&guard, &QTimer::timeout, [] {
      ADD_FAILURE() << "the program does not end";
      QCoreApplication::exit();
    });
    guard.start(60000);
    return Desktop().Run(commandLine);
  }

  static QMessageBox* OpenBox() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

 private:
  std::unique_ptr<DesktopProgram> program_;
};

}  // namespace veldrin
