// The tools of a Linux desktop, which take in what was tied. Windows is told by a message and has none.
#include "machine/output/real_association.h"
#include "tests/desktop/inherited_pipe.h"
#include "tests/desktop/scratch_folder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace veldrin {
namespace {

/// A desktop whose tools tell when they begin and end. The first waits for somebody to say "go".
class DesktopToolsTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void SetUp() override {
    PutTool("update-mime-database",
            "turns=0\n"
            "while [ ! -e '" +
                In("go") +
                "' ] && [ $turns -lt 500 ]; do\n"
                "  sleep 0.02; turns=$((turns + 1))\n"
                "done\n");
    PutTool("update-desktop-database", "");
    PutTool("xdg-mime", "");
    qputenv("PATH", folder.path().toLocal8Bit() + ":" + path_);
    qputenv("XDG_DATA_HOME", In("data").toLocal8Bit());
  }
  void TearDown() override {
    Go();
    children.AwaitEnd();
    qputenv("PATH", path_);
    qunsetenv("XDG_DATA_HOME");
  }

  void PutTool(const QString& name, const QString& work) const {
    const auto tell = [&](const QString& word) {
      return "echo \"" + word + " " + name + " $*\" >> '" + In("log") + "'\n";
    };
    PutProgram(name, (tell("begin") + work + tell("end")).toUtf8());
  }

  void Go() const { QFile(In("go")).open(QIODevice::WriteOnly); }

  QString Log() const {
    QFile file(In("log"));
    return file.open(QIODevice::ReadOnly) ? QString(file.readAll()).replace(folder.path(), "IN") : QString();
  }

  InheritedPipe children;

 private:
  const QByteArray path_ = qgetenv("PATH");
};

constexpr char kAssociated[] =
    "begin update-mime-database IN/data/mime\n"
    "end update-mime-database IN/data/mime\n"
    "begin update-desktop-database IN/data/applications\n"
    "end update-desktop-database IN/data/applications\n"
    "begin xdg-mime default veldrin-plan.desktop application/x-veldrin-plan\n"
    "end xdg-mime default veldrin-plan.desktop application/x-veldrin-plan\n";

TEST_F(DesktopToolsTest, NobodyWaitsForTheToolsAndTheyRunInTurn) {
  AssociateOnDesktop("nx4");
  EXPECT_FALSE(Log().contains("end")) << Log().toStdString();
  Go();
  EXPECT_TRUE(children.AwaitEnd());
  EXPECT_EQ(Log().toStdString(), kAssociated);
}

TEST_F(DesktopToolsTest, OneRunWaitsForTheOther) {
  AssociateOnDesktop("nx4");
  AssociateOnDesktop("vt2");
  Go();
  EXPECT_TRUE(children.AwaitEnd());
  EXPECT_EQ(Log().toStdString(), std::string(kAssociated) + kAssociated);
}

TEST_F(DesktopToolsTest, WhatIsDroppedIsTakenOutBehindTheProgramToo) {
  Go();
  AssociateOnDesktop("nx4");
  ASSERT_TRUE(children.AwaitEnd());
  QFile::remove(In("go"));
  QFile::remove(In("log"));
  DropOnDesktop("nx4");
  EXPECT_FALSE(Log().contains("end")) << Log().toStdString();
  Go();
  EXPECT_TRUE(children.AwaitEnd());
  EXPECT_EQ(Log().toStdString(),
            "begin update-mime-database IN/data/mime\n"
            "end update-mime-database IN/data/mime\n"
            "begin update-desktop-database IN/data/applications\n"
            "end update-desktop-database IN/data/applications\n");
}

TEST_F(DesktopToolsTest, AToolThatFailsIsPassedOver) {
  Go();
  PutTool("update-desktop-database", "exit 3\n");
  AssociateOnDesktop("nx4");
  EXPECT_TRUE(children.AwaitEnd());
  EXPECT_TRUE(Log().endsWith("end xdg-mime default veldrin-plan.desktop application/x-veldrin-plan\n"))
      << Log().toStdString();
}

}  // namespace
}  // namespace veldrin
