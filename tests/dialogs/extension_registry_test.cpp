#include "dialogs/extension_registry.h"

#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "workspace/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using Lines = std::vector<std::string>;

constexpr char kExt[] = "Software\\Tarn Ridge\\Veldrin\\Ext\\";

/// Takes down what the program did, one line each.
using Tell = std::function<void(const std::string& deed)>;

/// A registry that tells what is written and deleted.
struct TellingRegistry : SimulatedRegistry {
  Tell tell;

  static std::string Place(RegistryRoot root, const std::string& key) {
    return (root == RegistryRoot::ClassesRoot ? "HKCR " : "HKCU ") + key;
  }
  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override {
    tell(Place(root, key) + " " + value + "=" + text);
    return SimulatedRegistry::Write(root, key, value, text);
  }
  bool DeleteKey(RegistryRoot root, const std::string& key) override {
    tell("delete " + Place(root, key));
    return SimulatedRegistry::DeleteKey(root, key);
  }
};

/// A shell that tells which extensions are tied and untied.
struct TellingShell : SimulatedShell {
  using SimulatedShell::SimulatedShell;
  Tell tell;

  void AssociateExtension(const std::string& extension) override { tell("tie " + extension); }
  void DropExtension(const std::string& extension) override { tell("drop " + extension); }
};

/// Windows that tell the captions of menu entries.
struct TellingWindows : SimulatedWindows {
  using SimulatedWindows::SimulatedWindows;
  Tell tell;

  void SlotWritten(Control& control, const char* slot, bool changed) override {
    SimulatedWindows::SlotWritten(control, slot, changed);
    if (control.kind != ControlKind::Menu || std::string(slot) != "Caption") return;
    tell(control.IndexedName() + " " + static_cast<Menu&>(control).Caption.get());
  }
};

/// Boxes that tell their texts.
struct TellingBoxes : SimulatedBoxes {
  using SimulatedBoxes::SimulatedBoxes;
  Tell tell;

  BoxAnswer Message(BoxIcon icon, const std::string& title, const std::string& text,
                    BoxButtons buttons) override {
    tell("box " + text);
    return SimulatedBoxes::Message(icon, title, text, buttons);
  }
};

struct ExtensionRegistry : testing::Test {
  SimulatedMachine simulated;
  TellingRegistry registry;
  TellingWindows windows{simulated.clock, simulated.log};
  TellingBoxes boxes{simulated.log};
  TellingShell shell{simulated.files, simulated.log};
  Machine machine = MachineWith(simulated, registry, windows, boxes, shell);
  Program program{machine};
  /// Everything that was done, in its order, and between it the numbers that had changed by then.
  Lines deeds;
  int knownCount = 0;
  int knownSlot = 0;

  ExtensionRegistry() {
    const Tell tell = [this](const std::string& deed) { Did(deed); };
    registry.tell = tell;
    windows.tell = tell;
    boxes.tell = tell;
    shell.tell = tell;
    AttachExtensionRegistry(program);
  }
  ~ExtensionRegistry() override { windows.Forget(); }

  void Did(const std::string& deed) {
    const Workspace& workspace = program.workspace;
    if (workspace.ExtSlot != knownSlot) deeds.push_back("ExtSlot is " + std::to_string(workspace.ExtSlot));
    if (workspace.NumExtReg != knownCount)
      deeds.push_back("NumExtReg is " + std::to_string(workspace.NumExtReg));
    deeds.push_back(deed);
    ForgetNumbers();
  }
  void ForgetNumbers() {
    knownSlot = program.workspace.ExtSlot;
    knownCount = program.workspace.NumExtReg;
  }
  void ForgetDeeds() {
    ForgetNumbers();
    deeds.clear();
  }

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
  /// The list of a machine is read. What was done before is forgotten.
  void LoadMachine(const std::string& key) {
    program.workspace.MachineKey = key;
    ForgetDeeds();
    program.hooks.UpdateExtensionMenu();
  }
  void Click(int index) {
    ForgetDeeds();
    program.form2.menu_reg[index].Click();
  }
  Lines Captions() {
    Lines captions;
    for (const auto& [index, entry] : program.form2.menu_reg.Elements()) {
      if (entry->Visible) captions.push_back(entry->Caption);
    }
    return captions;
  }
};

TEST_F(ExtensionRegistry, OfferWritesNothing) {
  Start({"aaa"});
  LoadMachine("nx4");
  EXPECT_EQ(deeds, Lines{"menu_reg(2) .nx4 を「べるどりん君」に関連づける"});
}

TEST_F(ExtensionRegistry, RegistersInItsOrder) {
  Start({"aaa"});
  LoadMachine("nx4");
  Click(2);
  EXPECT_EQ(deeds, (Lines{"HKCR .nx4 =Veldrin.file", "HKCR .nx4 vdExtNum=2", "ExtSlot is 2",
                          "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\2 =nx4",
                          "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=2",
                          "menu_reg(2) .nx4 を関連づけから除外する", "NumExtReg is 2", "tie nx4",
                          "box .nx4がﾚｼﾞｽﾄﾘに登録されました"}));
}

TEST_F(ExtensionRegistry, RefusedQuestionTiesNothing) {
  Start({});
  Class(".nx4\\shell\\open\\command", "other.exe");
  LoadMachine("nx4");
  boxes.boxAnswers = {BoxAnswer::Cancel};
  Click(1);
  EXPECT_EQ(deeds, Lines{"box .nx4 の拡張子はすでに\r\nother.exe\r\nとして関連づけされています。\r\n"
                         "このまま上書きで「べるどりん君」に関連づけますか？"});
}

TEST_F(ExtensionRegistry, AdoptsInItsOrder) {
  Start({"aaa"});
  Class(".nx4", "NX4_AUTO_FILE");
  Class("nx4_auto_file\\shell\\open\\command", "C:\\Veldrin.EXE");
  LoadMachine("nx4");
  EXPECT_EQ(deeds, (Lines{"HKCR .nx4 =Veldrin.file", "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\2 =nx4",
                          "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=2", "delete HKCR nx4_auto_file",
                          "delete HKCR .nx4\\shell", "ExtSlot is 2", "NumExtReg is 2",
                          "menu_reg(2) .nx4 を関連づけから除外する", "tie nx4"}));
}

// The hand-made tie stays where the store refuses, and the slot number is written nowhere: every load finds
// it again.
TEST_F(ExtensionRegistry, StoreThatRefusesIsAdoptedFromAtEveryLoad) {
  Start({});
  Class(".nx4\\shell\\open\\command", "veldrin.exe %1");
  registry.refusesWrites = true;
  Lines captions;
  for (const int load : {1, 2, 3}) {
    LoadMachine("nx4");
    captions.push_back(".nx4 を関連づけから除外する");
    EXPECT_EQ(program.workspace.NumExtReg, load);
    EXPECT_EQ(program.workspace.MenuRegCount, load);
    EXPECT_EQ(program.workspace.ExtSlot, load);
    EXPECT_EQ(Captions(), captions);
  }
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_EQ(registry.Read(RegistryRoot::CurrentUser, kSettingsKey, "NumExtReg"), "0");
}

TEST_F(ExtensionRegistry, RemovesInItsOrder) {
  Start({"aaa", "bbb", "ccc"});
  LoadMachine("nx4");
  Click(1);
  EXPECT_EQ(
      deeds,
      (Lines{"delete HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\1", "delete HKCR .aaa",
             "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=2",
             "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\1 =bbb", "menu_reg(1) .bbb を関連づけから除外する",
             "HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\2 =ccc", "menu_reg(2) .ccc を関連づけから除外する",
             "menu_reg(3) .nx4 を「べるどりん君」に関連づける",
             "delete HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\3", "NumExtReg is 2", "drop aaa",
             "box .aaaはﾚｼﾞｽﾄﾘから削除されました"}));
  EXPECT_EQ(Captions(), (Lines{".bbb を関連づけから除外する", ".ccc を関連づけから除外する",
                               ".nx4 を「べるどりん君」に関連づける"}));
}

TEST_F(ExtensionRegistry, RemovalOfTheOnlyEntryDeletesItsSlotOnce) {
  Start({"nx4"});
  Class(".nx4", "1", "vdExtNum");
  LoadMachine("nx4");
  Click(1);
  EXPECT_EQ(deeds, (Lines{"delete HKCU Software\\Tarn Ridge\\Veldrin\\Ext\\1", "delete HKCR .nx4",
                          "HKCU Software\\Tarn Ridge\\Veldrin NumExtReg=0",
                          "menu_reg(1) .nx4 を「べるどりん君」に関連づける", "ExtSlot is 0", "NumExtReg is 0",
                          "drop nx4", "box .nx4はﾚｼﾞｽﾄﾘから削除されました"}));
}

// The desktop was told the whole extension when it was tied, and is told it again.
TEST_F(ExtensionRegistry, UntiesTheWholeExtensionWhereTheClassesRootLosesACutOne) {
  Start({"abcde"});
  LoadMachine("nx4");
  Click(1);
  EXPECT_EQ(std::count(deeds.begin(), deeds.end(), "delete HKCR .abc"), 1);
  EXPECT_EQ(std::count(deeds.begin(), deeds.end(), "drop abcde"), 1);
}

TEST_F(ExtensionRegistry, StoreThatRefusesGoesUnnoticed) {
  Start({"aaa"});
  LoadMachine("nx4");
  registry.refusesWrites = true;
  Click(2);
  EXPECT_EQ(program.workspace.NumExtReg, 2);
  EXPECT_EQ(program.workspace.ExtSlot, 2);
  EXPECT_EQ(Captions(), (Lines{".aaa を関連づけから除外する", ".nx4 を関連づけから除外する"}));
  EXPECT_EQ(boxes.shown.back().text, ".nx4がﾚｼﾞｽﾄﾘに登録されました");
  Click(1);
  EXPECT_EQ(program.workspace.NumExtReg, 1);
  EXPECT_EQ(Captions(), (Lines{".nx4 を関連づけから除外する"}));
  EXPECT_EQ(boxes.shown.back().text, ".aaaはﾚｼﾞｽﾄﾘから削除されました");
  EXPECT_EQ(boxes.shown.size(), 2U);
  // What the store holds is that of the start.
  EXPECT_EQ(registry.Read(RegistryRoot::CurrentUser, kSettingsKey, "NumExtReg"), "1");
  EXPECT_EQ(registry.Read(RegistryRoot::CurrentUser, std::string(kExt) + "1", ""), "aaa");
}

TEST_F(ExtensionRegistry, LargestCountTakesNoFurtherExtension) {
  program.workspace.NumExtReg = 32767;
  program.workspace.MenuRegCount = 32767;
  EXPECT_EQ(Guarded([&] { LoadMachine("nx4"); }), kFaultOverflow);
  EXPECT_TRUE(deeds.empty());
}

}  // namespace
}  // namespace veldrin
