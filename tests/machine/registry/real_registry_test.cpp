#include "machine/real_processor.h"
#include "tests/machine/registry/settings_file.h"

#include <sstream>

namespace veldrin {
namespace {

TEST_F(RealRegistryTest, TellsWhatWasWritten) {
  EXPECT_EQ(registry.Read(kUser, kKey, "Language"), std::nullopt);
  EXPECT_TRUE(registry.Write(kUser, kKey, "Language", "JP"));
  EXPECT_EQ(registry.Read(kUser, kKey, "Language"), "JP");
  EXPECT_TRUE(registry.Write(kUser, kKey, "Language", ""));
  EXPECT_EQ(registry.Read(kUser, kKey, "Language"), "");
  EXPECT_EQ(registry.Read(kUser, kKey, ""), std::nullopt);
}

TEST_F(RealRegistryTest, NamesDoNotDependOnCaseAndRootsAreApart) {
  registry.Write(kUser, "\\Software\\Tarn Ridge\\VELDRIN\\", "Tyre_l", "1.9");
  EXPECT_EQ(registry.Read(kUser, kKey, "TYRE_L"), "1.9");
  EXPECT_EQ(registry.Read(kClasses, kKey, "TYRE_L"), std::nullopt);
  registry.Write(kUser, kKey, "Tyre_L", "2");
  EXPECT_EQ(registry.Read(kUser, kKey, "Tyre_l"), "2");
}

TEST_F(RealRegistryTest, TheFileIsOneThatPeopleCanRead) {
  registry.Write(kClasses, ".nx4", "", "Veldrin.file");
  registry.Write(kUser, kKey, "Pr_Font", "ＭＳ ゴシック");
  registry.Write(kUser, kKey, "App Path", "C:\\VELDRIN");
  registry.Write(kUser, std::string(kKey) + "\\Ext\\1", "", " a \"quoted\"\r\ntext ");
  EXPECT_EQ(
      Text().toStdString(),
      "# Settings of Veldrin, in place of a registry. All running copies of the program share this file.\n"
      "\n"
      "[ClassesRoot\\.nx4]\n"
      "@=\"Veldrin.file\"\n"
      "\n"
      "[CurrentUser\\Software\\Tarn Ridge\\Veldrin]\n"
      "\"App Path\"=\"C:\\\\VELDRIN\"\n"
      "\"Pr_Font\"=\"ＭＳ ゴシック\"\n"
      "\n"
      "[CurrentUser\\Software\\Tarn Ridge\\Veldrin\\Ext\\1]\n"
      "@=\" a \\\"quoted\\\"\\r\\ntext \"\n");
  EXPECT_EQ(SettingsRegistry(file).Read(kUser, std::string(kKey) + "\\Ext\\1", ""), " a \"quoted\"\r\ntext ");
}

TEST_F(RealRegistryTest, ADamagedFileIsReadAsFarAsItGoes) {
  PutText(
      "\"Lost\"=\"no "
      "key\"\r\n[CurrentUser\\A]\r\n\"Good\"=\"1\"\r\n\"Open\"=\"2\r\nGood=3\r\n=\r\n\"\r\n@\r\n[\r\n"
      "\"Last\"=\"\\");
  EXPECT_EQ(registry.Read(kUser, "A", "Good"), "1");
  EXPECT_EQ(registry.Read(kUser, "A", "Open"), std::nullopt);
  EXPECT_EQ(registry.Read(kUser, "A", "Last"), std::nullopt);
  EXPECT_TRUE(registry.Write(kUser, "A", "Open", "2"));
  EXPECT_EQ(registry.Read(kUser, "A", "Good"), "1");
}

TEST_F(RealRegistryTest, DeletingAKeyTakesAllBelowIt) {
  for (const char* key : {"Ext", "Ext\\1", "Ext\\1\\Deep", "Ext2"}) registry.Write(kUser, key, "", "x");
  EXPECT_TRUE(registry.DeleteKey(kUser, "EXT\\1"));
  EXPECT_EQ(registry.Read(kUser, "Ext\\1\\Deep", ""), std::nullopt);
  EXPECT_EQ(registry.Read(kUser, "Ext", ""), "x");
  EXPECT_TRUE(registry.DeleteKey(kUser, "Ext"));
  EXPECT_EQ(registry.Read(kUser, "Ext2", ""), "x");
  EXPECT_FALSE(registry.DeleteKey(kUser, "Ext"));
  EXPECT_FALSE(registry.DeleteKey(kUser, ""));
  EXPECT_FALSE(registry.DeleteKey(kClasses, "Ext2"));
}

TEST_F(RealRegistryTest, AKeyThatTheFileCannotTellIsRefused) {
  EXPECT_FALSE(registry.Write(kClasses, ".a\nb", "", "x"));
  EXPECT_EQ(registry.Read(kClasses, ".a\nb", ""), std::nullopt);
  EXPECT_TRUE(registry.Write(kClasses, ".a]b[c=\"d", "e=\"f", "x"));
  EXPECT_EQ(SettingsRegistry(file).Read(kClasses, ".a]b[c=\"d", "e=\"f"), "x");
}

TEST_F(RealRegistryTest, AWriteThatChangesNothingLeavesTheFileAlone) {
  registry.Write(kUser, kKey, "a", "1");
  QFile::setPermissions(file, QFileDevice::ReadOwner);
  EXPECT_TRUE(registry.Write(kUser, kKey, "A", "1"));
  EXPECT_FALSE(registry.Write(kUser, kKey, "a", "2"));
}

TEST_F(RealRegistryTest, CopiesOfTheProgramKeepEachOthersWrites) {
  SettingsRegistry other(file);
  registry.Write(kUser, kKey, "a", "1");
  other.Write(kUser, kKey, "b", "2");
  registry.Write(kUser, kKey, "c", "3");
  EXPECT_EQ(other.Read(kUser, kKey, "c"), "3");
  EXPECT_EQ(registry.Read(kUser, kKey, "b"), "2");
}

TEST_F(RealRegistryTest, WhatCannotBeStoredIsKeptForThisRun) {
  // A file where the folder should be refuses everybody.
  QFile blocker(folder.path() + "/settings");
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  EXPECT_FALSE(registry.Write(kUser, kKey, "NumExtReg", "0"));
  EXPECT_EQ(registry.Read(kUser, kKey, "NumExtReg"), "0");
  EXPECT_FALSE(registry.DeleteKey(kUser, kKey));
  EXPECT_EQ(registry.Read(kUser, kKey, "NumExtReg"), std::nullopt);
  EXPECT_FALSE(registry.Write(kUser, kKey, "Language", "JP"));
  EXPECT_EQ(SettingsRegistry(file).Read(kUser, kKey, "Language"), std::nullopt);
  // It goes along with the next write that can.
  blocker.remove();
  EXPECT_TRUE(registry.Write(kUser, kKey, "Max_Ne", "15000"));
  EXPECT_EQ(SettingsRegistry(file).Read(kUser, kKey, "Language"), "JP");
}

TEST_F(RealRegistryTest, AFileThatCannotBeReadIsNotReplaced) {
  // A folder in the file's place.
  QDir(folder.path()).mkpath("settings/registry.txt");
  EXPECT_FALSE(registry.Write(kUser, kKey, "a", "1"));
  EXPECT_EQ(registry.Read(kUser, kKey, "a"), "1");
  EXPECT_TRUE(QDir(file).exists());
}

TEST_F(RealRegistryTest, TheLocalMachineTellsItsProcessorAndIsNotWritten) {
  EXPECT_FALSE(registry.Write(kLocal, kKey, "a", "1"));
  EXPECT_FALSE(registry.DeleteKey(kLocal, kKey));
  EXPECT_EQ(registry.Read(kLocal, kKey, "a"), std::nullopt);
  EXPECT_NE(registry.Read(kLocal, "Enum\\Root\\*PNP0C01\\0000", "CPU").value_or(""), "");
}

TEST(RealProcessor, NamesComeFromTheFirstProcessorOfTheList) {
  std::istringstream list(
      "processor\t: 0\nvendor_id\t: GenuineIntel\ncpu family\t: 6\nmodel\t\t: 85\n"
      "model name\t: Intel(R) Xeon(R) CPU @ 2.00GHz\n\nprocessor\t: 1\nvendor_id\t: Other\n");
  const ProcessorNames names = ReadProcessorNames(list);
  EXPECT_EQ(names.vendor, "GenuineIntel");
  EXPECT_EQ(names.model, "Intel(R) Xeon(R) CPU @ 2.00GHz");
  std::istringstream arm("processor\t: 0\nBogoMIPS\t: 50.00\nCPU implementer\t: 0x41\n");
  EXPECT_EQ(ReadProcessorNames(arm).vendor, "");
  EXPECT_EQ(ReadProcessorNames(arm).model, "");
}

}  // namespace
}  // namespace veldrin
