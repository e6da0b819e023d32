// The machine's real shell, and a folder for what it starts.
#pragma once

#include "machine/files/real_files.h"
#include "machine/output/real_shell.h"
#include "platform/system_code_pages.h"
#include "runtime/fault.h"
#include "tests/desktop/scratch_folder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <gtest/gtest.h>

#include <string>

namespace veldrin {

class RealShellTest : public ::testing::Test, protected ScratchFolder {
 protected:
  /// What a program wrote to a file, waited for.
  QByteArray OutputIn(const QString& name) const {
    QElapsedTimer timer;
    timer.start();
    while (!QFile::exists(In(name)) && timer.elapsed() < 20000) QThread::msleep(10);
    return Bytes(name);
  }

  int Fault(const std::string& command) {
    return Guarded([&] { shell.Run(command); });
  }

  RealFiles files{SystemCodePages(false)};
  RealShell shell{files};
};

}  // namespace veldrin
