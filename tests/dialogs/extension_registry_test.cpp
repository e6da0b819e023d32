#include "dialogs/extension_registry.h"

#include "script/simulated_machine.h"
#include "workspace/settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

using Lines = std::vector<std::string>;

constexpr char kExt[] = "Software\\Tarn Ridge\\Veldrin\\Ext\\";

/// A registry that keeps what was asked to be written and deleted.
struct RecordingRegistry : SimulatedRegistry {
  Lines deeds;

  static std::string Place(RegistryRoot root, const std::string& key) {
    return (root == RegistryRoot::ClassesRoot ? "HKCR " : "HKCU ") + key;
  }
  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override {
    deeds.push_back(Place(root, key) + " " + value + "=" + text);
    return SimulatedRegistry::Write(root, key, value, text);
  }
  bool DeleteKey(RegistryRoot root, const std::string& key) override {
    deeds.push_back("delete " + Place(root, key));
    return SimulatedRegistry::DeleteKey(root, key);
  }
};

/// A shell that keeps which extensions were tied and untied.
struct RecordingShell : SimulatedShell {
  using SimulatedShell::SimulatedShell;
  Lines ties;

  void AssociateExtension(const std::string& extension) override { ties.push_back("tie " + extension); }
  void DropExtension(const std::string& extension) override { ties.push_back("drop " + extension); }
};

struct ExtensionRegistry : testing::Test {
  SimulatedMachine simulated;
  RecordingRegistry registry;
  RecordingShell shell{simulated.files, simulated.log};
  Machine machine{simulated.files,     registry,          simulated.profile,  simulated.environment,
                  simulated.instances, simulated.screen,  simulated.windows,  simulated.boxes,
                  simulated.metrics,   simulated.printer, simulated.pictures, shell,
                  simulated.sound,     simulated.figures};
  Program program{machine};

  ExtensionRegistry() { AttachExtensionRegistry(program); }
  ~ExtensionRegistry() override { simulated.windows.Forget(); }

  void Class(const std::string& key, const std::string& text, const std::string& value = "") {
    registry.Write(RegistryRoot::ClassesRoot, key, value, text);
  }
  /// The slots in use, and the menu that the start builds of them.
  void Start(const Lines& extensions) {
    registry.Write(RegistryRoot::CurrentUser, kSettingsKey, "NumExtReg", std::to_string(extensions.size()));
    for (std::size_t i = 0; i < extensions.size(); ++i) {
      registry.Write(RegistryRoot::CurrentUser, kExt + std::to_string(i + 1), "", extensions[i]);
    }
    program.hooks.BuildExtensionMenu();
  }
  void LoadMachine(const std::string& key) {
    program.workspace.MachineKey = key;
    registry.deeds.clear();
    program.hooks.UpdateExtensionMenu();
  }
  Lines Captions() {
    Lines captions;
    for (const auto& [index, entry] : program.form2.menu_reg.Elements()) {
      if (entry->Visible) captions.push_back(entry->Caption);
    }
    return captions;
  }
};

TEST_F(ExtensionRegistry, RegistersInItsOrder) {
  Start({"aaa"});
  LoadMachine("nx4");
  EXPECT_TRUE(registry.deeds.empty());
  EXPECT_TRUE(shell.ties.empty());
  program.form2.menu_reg[2].Click();
  EXPECT_EQ(registry.deeds, (Lines{"HKCR .nx4 =Veldrin.file", "HKCR .nx4 vdExtNum=2",
                                   "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\2 =nx4",
                                   "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=2"}));
  EXPECT_EQ(shell.ties, Lines{"tie nx4"});
}

TEST_F(ExtensionRegistry, RefusedQuestionTiesNothing) {
  Start({});
  Class(".nx4\\shell\\open\\command", "other.exe");
  LoadMachine("nx4");
  simulated.boxes.boxAnswers = {BoxAnswer::Cancel};
  program.form2.menu_reg[1].Click();
  EXPECT_TRUE(registry.deeds.empty());
  EXPECT_TRUE(shell.ties.empty());
}

TEST_F(ExtensionRegistry, AdoptsInItsOrder) {
  Start({"aaa"});
  Class(".nx4", "NX4_AUTO_FILE");
  Class("nx4_auto_file\\shell\\open\\command", "C:\\Veldrin.EXE");
  LoadMachine("nx4");
  EXPECT_EQ(registry.deeds,
            (Lines{"HKCR .nx4 =Veldrin.file", "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\2 =nx4",
                   "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=2", "delete HKCR nx4_auto_file",
                   "delete HKCR .nx4\\shell"}));
  EXPECT_EQ(shell.ties, Lines{"tie nx4"});
}

TEST_F(ExtensionRegistry, RemovesInItsOrder) {
  Start({"aaa", "bbb", "ccc"});
  LoadMachine("nx4");
  program.form2.menu_reg[1].Click();
  EXPECT_EQ(registry.deeds, (Lines{"delete HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\1", "delete HKCR .aaa",
                                   "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=2",
                                   "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\1 =bbb",
                                   "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\2 =ccc",
                                   "delete HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\3"}));
  EXPECT_EQ(shell.ties, Lines{"drop aaa"});
  EXPECT_EQ(Captions(), (Lines{".bbb を関連づけから除外する", ".ccc を関連づけから除外する",
                               ".nx4 を「べるどりん君」に関連づける"}));
}

TEST_F(ExtensionRegistry, RemovalOfTheOnlyEntryDeletesItsSlotOnce) {
  Start({"nx4"});
  Class(".nx4", "1", "vdExtNum");
  LoadMachine("nx4");
  program.form2.menu_reg[1].Click();
  EXPECT_EQ(registry.deeds, (Lines{"delete HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\1", "delete HKCR .nx4",
                                   "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=0"}));
}

// The desktop was told the whole extension when it was tied, and is told it again.
TEST_F(ExtensionRegistry, UntiesTheWholeExtensionWhereTheClassesRootLosesACutOne) {
  Start({"abcde"});
  LoadMachine("nx4");
  program.form2.menu_reg[1].Click();
  EXPECT_EQ(registry.deeds[1], "delete HKCR .abc");
  EXPECT_EQ(shell.ties, Lines{"drop abcde"});
}

TEST_F(ExtensionRegistry, StoreThatRefusesGoesUnnoticed) {
  Start({"aaa"});
  LoadMachine("nx4");
  registry.refusesWrites = true;
  program.form2.menu_reg[2].Click();
  EXPECT_EQ(program.workspace.NumExtReg, 2);
  EXPECT_EQ(program.workspace.ExtSlot, 2);
  EXPECT_EQ(Captions(), (Lines{".aaa を関連づけから除外する", ".nx4 を関連づけから除外する"}));
  EXPECT_EQ(simulated.boxes.shown.back().text, ".nx4がﾚｼﾞｽﾄﾘに登録されました");
  program.form2.menu_reg[1].Click();
  EXPECT_EQ(program.workspace.NumExtReg, 1);
  EXPECT_EQ(Captions(), (Lines{".nx4 を関連づけから除外する"}));
  EXPECT_EQ(simulated.boxes.shown.back().text, ".aaaはﾚｼﾞｽﾄﾘから削除されました");
  EXPECT_EQ(simulated.boxes.shown.size(), 2U);
  // What the store holds is that of the start.
  EXPECT_EQ(registry.Read(RegistryRoot::CurrentUser, kSettingsKey, "NumExtReg"), "1");
  EXPECT_EQ(registry.Read(RegistryRoot::CurrentUser, std::string(kExt) + "1", ""), "aaa");
}

TEST_F(ExtensionRegistry, LargestCountTakesNoFurtherExtension) {
  program.workspace.NumExtReg = 32767;
  program.workspace.MenuRegCount = 32767;
  EXPECT_EQ(Guarded([&] { LoadMachine("nx4"); }), kFaultOverflow);
  EXPECT_TRUE(registry.deeds.empty());
}

}  // namespace
}  // namespace veldrin
