// The registry of Windows, which no other system has: texts there and back, damaged values, the type of plan
// files.
#include "machine/registry/real_file_type.h"
#include "machine/registry/real_windows_registry.h"
#include "tests/desktop/scratch_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <gtest/gtest.h>

#include <string>
#include <windows.h>

namespace veldrin {
namespace {

constexpr auto kUser = RegistryRoot::CurrentUser;
constexpr auto kClasses = RegistryRoot::ClassesRoot;
constexpr auto kLocal = RegistryRoot::LocalMachine;
constexpr char kKey[] = "Software\\Tarn Ridge\\Veldrin Test";

/// Puts bytes of a kind that the program does not write into a value of the test's key.
void PutRaw(const wchar_t* value, DWORD kind, const std::string& bytes) {
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, L"Software\\Tarn Ridge\\Veldrin Test", 0, nullptr, 0,
                            KEY_SET_VALUE, nullptr, &key, nullptr),
            ERROR_SUCCESS);
  RegSetValueExW(key, value, 0, kind, reinterpret_cast<const BYTE*>(bytes.data()),
                 static_cast<DWORD>(bytes.size()));
  RegCloseKey(key);
}

class WindowsRegistryTest : public ::testing::Test {
 protected:
  void SetUp() override { Sweep(); }
  void TearDown() override { Sweep(); }

  void Sweep() {
    registry.DeleteKey(kUser, kKey);
    registry.DeleteKey(kClasses, kFileType);
  }

  WindowsRegistry registry;
};

TEST_F(WindowsRegistryTest, TellsWhatWasWritten) {
  EXPECT_EQ(registry.Read(kUser, kKey, "Language"), std::nullopt);
  EXPECT_TRUE(registry.Write(kUser, kKey, "Language", "JP"));
  EXPECT_EQ(registry.Read(kUser, kKey, "Language"), "JP");
  EXPECT_TRUE(registry.Write(kUser, kKey, "Language", ""));
  EXPECT_EQ(registry.Read(kUser, kKey, "LANGUAGE"), "");
  EXPECT_EQ(registry.Read(kUser, kKey, ""), std::nullopt);
  EXPECT_TRUE(registry.Write(kUser, kKey, "", "鈴鹿 한"));
  EXPECT_EQ(registry.Read(kUser, "software\\TARN RIDGE\\veldrin test", ""), "鈴鹿 한");
  const std::string path = "C:\\" + std::string(3000, 'a');
  EXPECT_TRUE(registry.Write(kUser, kKey, "List_Path", path));
  EXPECT_EQ(registry.Read(kUser, kKey, "List_Path"), path);
}

TEST_F(WindowsRegistryTest, AKeyGoesWithAllBelowIt) {
  registry.Write(kUser, std::string(kKey) + "\\Ext\\1", "", "nx4");
  EXPECT_TRUE(registry.DeleteKey(kUser, std::string(kKey) + "\\Ext"));
  EXPECT_EQ(registry.Read(kUser, std::string(kKey) + "\\Ext\\1", ""), std::nullopt);
  EXPECT_FALSE(registry.DeleteKey(kUser, std::string(kKey) + "\\Ext"));
  EXPECT_FALSE(registry.DeleteKey(kUser, "")) << "everything would go";
  EXPECT_FALSE(registry.DeleteKey(kUser, "\\"));
  EXPECT_FALSE(registry.DeleteKey(kLocal, kKey));
  EXPECT_FALSE(registry.Write(kLocal, kKey, "", "x"));
}

TEST_F(WindowsRegistryTest, DamagedValuesAreReadAsFarAsTheyAreText) {
  using namespace std::string_literals;
  PutRaw(L"Number", REG_DWORD, "\x2A\0\0\0"s);
  PutRaw(L"Bytes", REG_BINARY, "1\0.\0009\0"s);
  EXPECT_EQ(registry.Read(kUser, kKey, "Number"), std::nullopt);
  EXPECT_EQ(registry.Read(kUser, kKey, "Bytes"), std::nullopt);
  PutRaw(L"Endless", REG_SZ, "1\0.\0009\0"s);
  EXPECT_EQ(registry.Read(kUser, kKey, "Endless"), "1.9");
  PutRaw(L"Empty", REG_SZ, "");
  EXPECT_EQ(registry.Read(kUser, kKey, "Empty"), "");
  PutRaw(L"Cut", REG_SZ, "1\0.\0009\0\0\0007\0"s);
  EXPECT_EQ(registry.Read(kUser, kKey, "Cut"), "1.9");
  PutRaw(L"Path", REG_EXPAND_SZ, "%\0A\0%\0\0\0"s);
  EXPECT_EQ(registry.Read(kUser, kKey, "Path"), "%A%") << "nothing is put in for variables";
  PutRaw(L"Half", REG_SZ, "1\0002"s);
  EXPECT_EQ(registry.Read(kUser, kKey, "Half").value_or("1").substr(0, 1), "1");
  EXPECT_TRUE(registry.Write(kUser, kKey, "Number", "42"));
  EXPECT_EQ(registry.Read(kUser, kKey, "Number"), "42");
}

TEST_F(WindowsRegistryTest, WhatCannotBeWrittenIsToldOnce) {
  std::vector<SettingsTrouble> told;
  registry.troubled = [&](const SettingsTrouble& trouble) { told.push_back(trouble); };
  const std::string tooLong = std::string(kKey) + "\\" + std::string(300, 'a');
  EXPECT_FALSE(registry.Write(kUser, tooLong, "Language", "JP"));
  EXPECT_FALSE(registry.Write(kUser, tooLong, "Language", "EN"));
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told.front().path, "HKEY_CURRENT_USER\\" + tooLong);
}

TEST_F(WindowsRegistryTest, TheProcessorIsTold) {
  EXPECT_NE(registry.Read(kLocal, "hardware\\DESCRIPTION\\System\\CentralProcessor\\0", "CPU").value_or(""),
            "");
}

// ---- The type of plan files ----

std::string RunningProgram() {
  return QDir::toNativeSeparators(QCoreApplication::applicationFilePath()).toStdString();
}

std::string RightCommand() {
  return "\"" + RunningProgram() + "\" \"%1\"";
}

class FileTypeInRegistryTest : public WindowsRegistryTest {
 protected:
  /// What the program's rule writes at its first run.
  void WriteRule() {
    registry.Write(kClasses, "Veldrin.file", "", "「べるどりん君」ﾌｧｲﾙ");
    registry.Write(kClasses, "Veldrin.file\\DefaultIcon", "", "C:\\LISTS\\veldrin.exe,1");
    registry.Write(kClasses, "Veldrin.file\\Shell\\open", "", "「べるどりん君」で開く");
    registry.Write(kClasses, "Veldrin.file\\Shell\\open\\command", "", "C:\\LISTS\\veldrin.exe %1");
  }

  std::string Default(const std::string& key) { return registry.Read(kClasses, key, "").value_or("(none)"); }

  /// A command as an installer writes it, past the program.
  void PutCommand(const std::string& command) {
    const std::wstring text = QString::fromStdString(command).toStdWString();
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Classes\\Veldrin.file\\Shell\\open\\command", nullptr,
                    REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  }
};

TEST_F(FileTypeInRegistryTest, TheFirstRunTiesTheRunningProgram) {
  WriteRule();
  EXPECT_EQ(Default("Veldrin.file"), "「べるどりん君」ﾌｧｲﾙ");
  EXPECT_EQ(Default("Veldrin.file\\DefaultIcon"), "\"" + RunningProgram() + "\",1");
  EXPECT_EQ(Default("Veldrin.file\\Shell\\open"), "「べるどりん君」で開く");
  EXPECT_EQ(Default("Veldrin.file\\Shell\\open\\command"), RightCommand());
}

TEST_F(FileTypeInRegistryTest, WhatAnInstallerWroteStays) {
  const ScratchFolder scratch;
  scratch.Put("Program Files/veldrin.exe", "");
  const QString installed = QDir::toNativeSeparators(scratch.In("Program Files/veldrin.exe"));
  const std::string command = "\"" + installed.toStdString() + "\" \"%1\"";
  PutCommand(command);
  WriteRule();
  registry.Check();
  WindowsRegistry::TieFileType();
  EXPECT_EQ(Default("Veldrin.file\\Shell\\open\\command"), command);
  EXPECT_EQ(Default("Veldrin.file"), "(none)") << "nor do the words of the rule come over the installer's";
}

TEST_F(FileTypeInRegistryTest, AProgramThatIsNotThereIsReplaced) {
  for (const char* wrong : {"C:\\LISTS\\veldrin.exe %1", "\"C:\\no such\\veldrin.exe\" \"%1\""}) {
    PutCommand(wrong);
    registry.Check();
    EXPECT_EQ(Default("Veldrin.file\\Shell\\open\\command"), RightCommand()) << wrong;
    EXPECT_EQ(Default("Veldrin.file\\DefaultIcon"), "\"" + RunningProgram() + "\",1") << wrong;
  }
}

TEST_F(FileTypeInRegistryTest, AStartMakesNoTypeWhereThereIsNone) {
  registry.Check();
  EXPECT_EQ(Default("Veldrin.file\\Shell\\open\\command"), "(none)");
  WindowsRegistry::TieFileType();
  EXPECT_EQ(Default("Veldrin.file\\Shell\\open\\command"), RightCommand()) << "but a tie needs one";
}

}  // namespace
}  // namespace veldrin
