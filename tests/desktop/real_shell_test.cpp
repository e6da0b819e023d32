#include "desktop/real_shell.h"

#include "desktop/real_association.h"
#include "desktop/real_code_pages.h"
#include "desktop/real_files.h"
#include "desktop/real_sound.h"
#include "runtime/fault.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
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

class RealShellTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  RealFiles files{SystemCodePages(false)};
  RealShell shell{files};

  /// A program that writes its arguments, one a line, beside itself.
  void PutProgram(const QString& name) const {
    QFile file(folder.path() + "/" + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$0.part\"\nmv \"$0.part\" \"$0.out\"\n");
    file.close();
    chmod(file.fileName().toLocal8Bit().constData(), 0755);
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
  PutProgram("Show It");
  shell.Run("\"" + folder.path().toStdString() + "/show it\" one \"two words\"  鈴鹿");
  EXPECT_EQ(OutputOf("Show It").toStdString(), "one\ntwo words\n鈴鹿\n");
}

TEST_F(RealShellTest, TellsAMissingProgramFromAMissingFolder) {
  PutProgram("plain");
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

TEST_F(RealShellTest, WhatIsNotThereIsNotOpened) {
  EXPECT_FALSE(shell.OpenWithDesktop(folder.path().toStdString() + "/none"));
  EXPECT_FALSE(shell.OpenWithDesktop(""));
}

TEST_F(RealShellTest, AMissingSoundFileStaysSilent) {
  RealSound sound(files);
  sound.Play(folder.path().toStdString() + "/none.wav");
  sound.Play("");
  sound.Beep();
}

/// The desktop's data of a user of its own.
class RealAssociationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("update-mime-database").isEmpty())
      GTEST_SKIP() << "no shared-mime-info";
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (folder.path() + "/config").toUtf8());
  }
  void TearDown() override {
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("XDG_CONFIG_HOME");
  }

  QByteArray Patterns() const { return BytesOf(folder.path() + "/mime/globs2"); }

  QTemporaryDir folder;
};

TEST_F(RealAssociationTest, ExtensionsAreTiedAndUntiedOneByOne) {
  AssociateOnDesktop("NX4");
  EXPECT_TRUE(Patterns().contains("60:application/x-veldrin-plan:*.nx4\n")) << Patterns().constData();
  AssociateOnDesktop("vt2");
  EXPECT_TRUE(Patterns().contains("*.nx4\n"));
  EXPECT_TRUE(Patterns().contains("*.vt2\n"));
  const QString entry = folder.path() + "/applications/veldrin-plan.desktop";
  EXPECT_TRUE(BytesOf(entry).contains("MimeType=application/x-veldrin-plan;\n"));
  EXPECT_TRUE(BytesOf(entry).contains("Exec=\"/")) << BytesOf(entry).constData();
  DropOnDesktop("nx4");
  EXPECT_FALSE(Patterns().contains("*.nx4\n"));
  EXPECT_TRUE(Patterns().contains("*.vt2\n"));
  EXPECT_TRUE(QFile::exists(entry));
  DropOnDesktop("vt2");
  EXPECT_FALSE(Patterns().contains("x-veldrin-plan"));
  EXPECT_FALSE(QFile::exists(entry));
  DropOnDesktop("vt2");
}

TEST_F(RealAssociationTest, NoNameGetsOutOfItsFileOrPattern) {
  for (const char* name : {"a", "v1.2", "a&b<c>", "../../x", "a*b", "鈴鹿", ""}) AssociateOnDesktop(name);
  const QByteArray patterns = Patterns();
  for (const char* pattern :
       {":*.a\n", ":*.v1.2\n", ":*.a&b<c>\n", ":*.../../x\n", ":*.a[*]b\n", ":*.鈴鹿\n"}) {
    EXPECT_TRUE(patterns.contains(pattern)) << pattern << patterns.constData();
  }
  EXPECT_EQ(QDir(folder.path() + "/mime/packages").entryList(QDir::Files).size(), 6);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 0);
  for (const char* name : {"a", "v1.2", "a&b<c>", "../../x", "a*b", "鈴鹿"}) DropOnDesktop(name);
  EXPECT_EQ(QDir(folder.path() + "/mime/packages").entryList(QDir::Files).size(), 0);
}

}  // namespace
}  // namespace veldrin
