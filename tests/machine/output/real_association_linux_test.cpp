// How extensions are tied by the files and tools of a Linux desktop. Windows ties them by its registry alone.
#include "machine/output/real_association.h"
#include "tests/desktop/inherited_pipe.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using Lines = std::vector<std::string>;

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
}

/// The desktop's data of a user of its own. The desktop's tools have to be there.
class RealAssociationTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* tool : {"update-mime-database", "update-desktop-database", "xdg-mime"})
      ASSERT_FALSE(QStandardPaths::findExecutable(tool).isEmpty()) << tool << " is not installed";
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (folder.path() + "/config").toUtf8());
  }
  void TearDown() override {
    qunsetenv("XDG_DATA_HOME");
    qunsetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_DATA_DIRS");
    qputenv("PATH", path);
  }

  /// Ties or unties an extension and waits until the desktop's tools have taken that in.
  void Tie(const QString& extension) {
    AssociateOnDesktop(extension);
    EXPECT_TRUE(tools.AwaitEnd());
  }
  void Untie(const QString& extension) {
    DropOnDesktop(extension);
    EXPECT_TRUE(tools.AwaitEnd());
  }

  /// Makes this program one that was installed with its entry, reached by PATH under its name.
  void Install() {
    QDir(folder.path()).mkpath("installed/applications");
    QDir(folder.path()).mkpath("bin");
    QFile entry(folder.path() + "/installed/applications/veldrin.desktop");
    ASSERT_TRUE(entry.open(QIODevice::WriteOnly));
    entry.write("[Desktop Entry]\nType=Application\nName=Veldrin\nExec=veldrin %f\n");
    ASSERT_TRUE(QFile::link(QCoreApplication::applicationFilePath(), folder.path() + "/bin/veldrin"));
    qputenv("XDG_DATA_DIRS", (folder.path() + "/installed:/usr/share").toUtf8());
    qputenv("PATH", folder.path().toUtf8() + "/bin:" + path);
  }

  QByteArray DefaultApplications() const {
    return BytesOf(folder.path() + "/config/mimeapps.list") + "\n" +
           BytesOf(folder.path() + "/applications/mimeapps.list");
  }

  QByteArray Patterns() const { return BytesOf(folder.path() + "/mime/globs2"); }
  QStringList Packages() const { return QDir(folder.path() + "/mime/packages").entryList(QDir::Files); }
  QString Entry() const { return folder.path() + "/applications/veldrin-plan.desktop"; }

  /// The patterns that name the program's type, with the weight of each.
  Lines OwnPatterns() const {
    Lines own;
    for (const QByteArray& line : Patterns().split('\n')) {
      if (line.contains(":application/x-veldrin-plan:")) own.push_back(line.toStdString());
    }
    std::sort(own.begin(), own.end());
    return own;
  }

  QTemporaryDir folder;
  const QByteArray path = qgetenv("PATH");
  InheritedPipe tools;
};

TEST_F(RealAssociationTest, ExtensionsAreTiedAndUntiedOneByOne) {
  Tie("NX4");
  EXPECT_TRUE(Patterns().contains("60:application/x-veldrin-plan:*.nx4\n")) << Patterns().constData();
  Tie("vt2");
  EXPECT_TRUE(Patterns().contains("*.nx4\n"));
  EXPECT_TRUE(Patterns().contains("*.vt2\n"));
  EXPECT_TRUE(BytesOf(Entry()).contains("MimeType=application/x-veldrin-plan;\n"));
  EXPECT_TRUE(BytesOf(Entry()).contains("Exec=\"/")) << BytesOf(Entry()).constData();
  Untie("nx4");
  EXPECT_FALSE(Patterns().contains("*.nx4\n"));
  EXPECT_TRUE(Patterns().contains("*.vt2\n"));
  EXPECT_TRUE(QFile::exists(Entry()));
  Untie("vt2");
  EXPECT_FALSE(Patterns().contains("x-veldrin-plan"));
  EXPECT_FALSE(QFile::exists(Entry()));
  Untie("vt2");
}

TEST_F(RealAssociationTest, ExtensionsOfEveryLengthAreTiedAndUntied) {
  for (const char* extension : {"a", "T1", "abcde"}) Tie(extension);
  EXPECT_EQ(OwnPatterns(),
            (Lines{"60:application/x-veldrin-plan:*.a", "60:application/x-veldrin-plan:*.abcde",
                   "60:application/x-veldrin-plan:*.t1"}));
  Untie("T1");
  EXPECT_EQ(OwnPatterns(),
            (Lines{"60:application/x-veldrin-plan:*.a", "60:application/x-veldrin-plan:*.abcde"}));
  // A part of an extension is another one.
  Untie("abc");
  Untie("abcd");
  Untie("abcde");
  EXPECT_EQ(OwnPatterns(), Lines{"60:application/x-veldrin-plan:*.a"});
  EXPECT_TRUE(QFile::exists(Entry()));
  Untie("a");
  EXPECT_EQ(OwnPatterns(), Lines{});
  EXPECT_EQ(Packages(), QStringList{});
  EXPECT_FALSE(QFile::exists(Entry()));
}

TEST_F(RealAssociationTest, TheProgramBecomesTheDefaultOfItsFiles) {
  Tie("nx4");
  const QByteArray both = DefaultApplications();
  EXPECT_TRUE(both.contains("[Default Applications]\n")) << both.constData();
  EXPECT_TRUE(both.split('\n').contains("application/x-veldrin-plan=veldrin-plan.desktop"))
      << both.constData();
  const QByteArray known = BytesOf(folder.path() + "/applications/mimeinfo.cache");
  EXPECT_TRUE(known.contains("application/x-veldrin-plan=veldrin-plan.desktop;")) << known.constData();
}

TEST_F(RealAssociationTest, AnEntryIsPassedOverOnceItsProgramHasGone) {
  Tie("nx4");
  const QByteArray line = "TryExec=" + QCoreApplication::applicationFilePath().toUtf8() + "\n";
  EXPECT_TRUE(BytesOf(Entry()).contains(line)) << BytesOf(Entry()).constData();
}

TEST_F(RealAssociationTest, TheEntryThatTheProgramWasInstalledWithServesItsFiles) {
  Install();
  Tie("nx4");
  EXPECT_FALSE(QFile::exists(Entry()));
  EXPECT_EQ(OwnPatterns(), Lines{"60:application/x-veldrin-plan:*.nx4"});
  EXPECT_TRUE(DefaultApplications().split('\n').contains("application/x-veldrin-plan=veldrin.desktop"))
      << DefaultApplications().constData();
  Untie("nx4");
  EXPECT_EQ(OwnPatterns(), Lines{});
}

TEST_F(RealAssociationTest, TheUsersEntryGoesWhenTheProgramHasBeenInstalled) {
  Tie("nx4");
  ASSERT_TRUE(QFile::exists(Entry()));
  Install();
  Tie("vt2");
  EXPECT_FALSE(QFile::exists(Entry()));
  EXPECT_EQ(OwnPatterns(),
            (Lines{"60:application/x-veldrin-plan:*.nx4", "60:application/x-veldrin-plan:*.vt2"}));
  EXPECT_TRUE(DefaultApplications().split('\n').contains("application/x-veldrin-plan=veldrin.desktop"))
      << DefaultApplications().constData();
}

TEST_F(RealAssociationTest, TheEntryOfAnotherCopyDoesNotServe) {
  Install();
  QFile::remove(folder.path() + "/bin/veldrin");
  ASSERT_TRUE(QFile::link("/bin/true", folder.path() + "/bin/veldrin"));
  Tie("nx4");
  EXPECT_TRUE(QFile::exists(Entry()));
}

TEST_F(RealAssociationTest, WithoutItsEntryNoExtensionIsTied) {
  QFile inTheWay(folder.path() + "/applications");
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  inTheWay.close();
  Tie("nx4");
  EXPECT_EQ(Packages(), QStringList{});
  EXPECT_FALSE(Patterns().contains("x-veldrin-plan"));
  EXPECT_EQ(inTheWay.size(), 0);
}

TEST_F(RealAssociationTest, NoNameGetsOutOfItsFileOrPattern) {
  for (const char* name : {"a", "v1.2", "a&b<c>", "../../x", "a*b", "鈴鹿", ""}) Tie(name);
  const QByteArray patterns = Patterns();
  for (const char* pattern :
       {":*.a\n", ":*.v1.2\n", ":*.a&b<c>\n", ":*.../../x\n", ":*.a[*]b\n", ":*.鈴鹿\n"}) {
    EXPECT_TRUE(patterns.contains(pattern)) << pattern << patterns.constData();
  }
  EXPECT_EQ(Packages().size(), 6);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 0);
  for (const char* name : {"a", "v1.2", "a&b<c>", "../../x", "a*b", "鈴鹿"}) Untie(name);
  EXPECT_EQ(Packages().size(), 0);
}

}  // namespace
}  // namespace veldrin
