// What is told of a settings file that is damaged or cannot be written.
#include "machine/registry/real_settings_registry.h"
#include "runtime/fault.h"
#include "tests/desktop/scratch_folder.h"

#include <QDate>
#include <gtest/gtest.h>

#include <vector>

namespace veldrin {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
constexpr char kWhole[] = "# Settings\n\n[CurrentUser\\A]\n\"Good\"=\"1\"\n@=\"x\"\r\n";

class SettingsTroubleTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void SetUp() override {
    registry.troubled = [this](const SettingsTrouble& trouble) { told.push_back(trouble); };
  }

  std::string Value(const std::string& name) {
    return SettingsRegistry(file).Read(kUser, "A", name).value_or("(none)");
  }
  QStringList Names() const { return QDir(In("settings")).entryList(QDir::Files, QDir::Name); }

  QString file = In("settings/registry.txt");
  QString copy = "registry.txt.damaged-" + QDate::currentDate().toString("yyyy-MM-dd");
  SettingsRegistry registry{file};
  std::vector<SettingsTrouble> told;
};

TEST_F(SettingsTroubleTest, AWholeFileIsLeftAlone) {
  Put("settings/registry.txt", kWhole);
  registry.Check();
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(Bytes("settings/registry.txt"), kWhole);
  EXPECT_EQ(Names(), QStringList{"registry.txt"});
}

TEST_F(SettingsTroubleTest, AFileThatIsNotThereIsNoTrouble) {
  registry.Check();
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(Names(), QStringList());
}

TEST_F(SettingsTroubleTest, WhatTheProgramWritesIsWhole) {
  EXPECT_TRUE(registry.Write(kUser, "A", "Path\xE9", "/home/caf\xE9/\xE9\"\\xE9\r\n\xE9"));
  EXPECT_EQ(Value("Path\xE9"), "/home/caf\xE9/\xE9\"\\xE9\r\n\xE9");
  EXPECT_FALSE(registry.Write(kUser, "A\xE9", "a", "1"));
  EXPECT_TRUE(registry.DeleteKey(kUser, "A"));
  registry.Check();
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(Names(), QStringList{"registry.txt"});
}

TEST_F(SettingsTroubleTest, ADamagedFileIsKeptAndWhatCanBeReadOfItHolds) {
  const std::vector<QByteArray> damaged = {
      "",
      "[CurrentUser\\A]\n\"Good\"=\"1\"\nno form\n",
      "[CurrentUser\\A]\n\"Good\"=\"1\"\n\"Torn\"=\"2",
      "[CurrentUser\\A]\n\"Good\"=\"1\"\n\"Name\"",
      "[CurrentUser\\A]\n\"Good\"=\"1\"\n[CurrentUs",
      "[CurrentUser\\A]\n\"Good\"=\"1\" and more\n",
      "[CurrentUser\\A]\n\"Good\"=\"1\"\n\"Bytes\"=\"\xE9\"\n",
      "\"Good\"=\"1\"\n[CurrentUser\\A]\n",
      QByteArray(64, '\0'),
  };
  for (const QByteArray& bytes : damaged) {
    QFile::remove(In("settings/" + copy));
    told.clear();
    Put("settings/registry.txt", bytes);
    registry.Check();
    ASSERT_EQ(told.size(), 1U) << bytes.toStdString();
    EXPECT_EQ(told[0].fault, 0);
    EXPECT_EQ(told[0].path, file.toStdString());
    EXPECT_EQ(told[0].copy, (In("settings/" + copy)).toStdString());
    EXPECT_EQ(Bytes("settings/" + copy), bytes);
    EXPECT_EQ(Value("Good"), bytes.startsWith("[CurrentUser\\A]\n\"Good\"") ? "1" : "(none)");
    registry.Check();
    EXPECT_EQ(told.size(), 1U) << "the new one is whole";
  }
}

TEST_F(SettingsTroubleTest, TheFirstWriteKeepsADamagedFileToo) {
  Put("settings/registry.txt", "[CurrentUser\\A]\n\"Good\"=\"1\"\ntorn");
  EXPECT_TRUE(registry.Write(kUser, "A", "New", "2"));
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(Bytes("settings/" + copy), "[CurrentUser\\A]\n\"Good\"=\"1\"\ntorn");
  EXPECT_EQ(Value("Good"), "1");
  EXPECT_EQ(Value("New"), "2");
}

TEST_F(SettingsTroubleTest, SeveralDamagedFilesOfADayAreAllKept) {
  for (const char* bytes : {"first", "second", "first"}) {
    Put("settings/registry.txt", bytes);
    registry.Check();
  }
  EXPECT_EQ(Names(), (QStringList{"registry.txt", copy, copy + "-2"}));
  EXPECT_EQ(Bytes("settings/" + copy), "first");
  EXPECT_EQ(Bytes("settings/" + copy + "-2"), "second");
}

TEST_F(SettingsTroubleTest, AFileThatDeniesWritingIsToldOnceAlsoIfNothingIsWritten) {
  Put("settings/registry.txt", kWhole);
  QFile::setPermissions(file, QFileDevice::ReadOwner);
  registry.Check();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].fault, kFaultPermissionDenied);
  EXPECT_EQ(told[0].path, file.toStdString());
  EXPECT_FALSE(registry.Write(kUser, "A", "Good", "2"));
  registry.Check();
  EXPECT_EQ(told.size(), 1U);
  EXPECT_EQ(Bytes("settings/registry.txt"), kWhole);
}

TEST_F(SettingsTroubleTest, AFolderThatCannotBeMadeIsTold) {
  Put("settings", "a file");
  EXPECT_FALSE(registry.Write(kUser, "A", "a", "1"));
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].fault, kFaultPathAccess);
}

TEST_F(SettingsTroubleTest, ADamagedFileThatCannotBeReplacedStays) {
  Put("settings/registry.txt", "torn");
  QFile::setPermissions(file, QFileDevice::ReadOwner);
  registry.Check();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0].fault, kFaultPermissionDenied);
  EXPECT_EQ(Names(), QStringList{"registry.txt"});
}

TEST_F(SettingsTroubleTest, AnEditorsByteMarkIsNoDamage) {
  Put("settings/registry.txt", QByteArray("\xEF\xBB\xBF") + kWhole);
  EXPECT_EQ(Value("Good"), "1");
  registry.Check();
  EXPECT_TRUE(told.empty());
}

}  // namespace
}  // namespace veldrin
