#include "machine/output/real_shell.h"

#include "machine/files/real_files.h"
#include "platform/system_code_pages.h"
#include "runtime/fault.h"
#include "tests/desktop/opened_links.h"
#include "tests/desktop/scratch_folder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace veldrin {
namespace {

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
}

class RealShellTest : public ::testing::Test, protected ScratchFolder {
 protected:
  RealFiles files{SystemCodePages(false)};
  RealShell shell{files};

  /// A program that writes its arguments, one a line, beside itself.
  void PutWriter(const QString& name) const {
    PutProgram(name, "printf '%s\\n' \"$@\" > \"$0.part\"\nmv \"$0.part\" \"$0.out\"\n");
  }

  /// What the program wrote, waited for.
  QByteArray OutputOf(const QString& name) const {
    const QString output = folder.path() + "/" + name + ".out";
    QElapsedTimer timer;
    timer.start();
    while (!QFile::exists(output) && timer.elapsed() < 20000) QThread::msleep(10);
    return BytesOf(output);
  }

  int Fault(const std::string& command) {
    return Guarded([&] { shell.Run(command); });
  }
};

TEST_F(RealShellTest, RunsAProgramWithItsArguments) {
  PutWriter("Show It");
  shell.Run("\"" + folder.path().toStdString() + "/show it\" one \"two words\"  鈴鹿");
  EXPECT_EQ(OutputOf("Show It").toStdString(), "one\ntwo words\n鈴鹿\n");
}

TEST_F(RealShellTest, TellsAMissingProgramFromAMissingFolder) {
  PutWriter("plain");
  QFile::setPermissions(folder.path() + "/plain", QFileDevice::ReadOwner);
  const std::string in = folder.path().toStdString();
  EXPECT_EQ(Fault(in + "/none x"), kFaultFileNotFound);
  EXPECT_EQ(Fault(in + "/plain x"), kFaultFileNotFound);
  EXPECT_EQ(Fault(in + "/none/none x"), kFaultPathNotFound);
  EXPECT_EQ(Fault("veldrin-no-such-program x"), kFaultFileNotFound);
  EXPECT_EQ(Fault("c:\\progra~1\\intern~1\\iexplore.exe https://veldrin.example/"), kFaultPathNotFound);
  EXPECT_EQ(Fault("\"unclosed"), kFaultFileNotFound);
  EXPECT_EQ(Fault(""), kFaultFileNotFound);
}

TEST_F(RealShellTest, LinksAndFoldersGoToTheDesktop) {
  const OpenedLinks desktop;
  QDir(folder.path()).mkdir("Some Plans");
  EXPECT_TRUE(shell.OpenWithDesktop("https://veldrin.example/"));
  EXPECT_TRUE(shell.OpenWithDesktop(folder.path().toStdString() + "/some plans"));
  EXPECT_EQ(desktop.opened,
            (QStringList{"https://veldrin.example/", "file://" + folder.path() + "/Some Plans"}));
}

TEST_F(RealShellTest, WhatIsNotThereIsNotOpened) {
  const OpenedLinks desktop;
  EXPECT_FALSE(shell.OpenWithDesktop(folder.path().toStdString() + "/none"));
  EXPECT_FALSE(shell.OpenWithDesktop(""));
  EXPECT_EQ(desktop.opened, QStringList{});
}

}  // namespace
}  // namespace veldrin
