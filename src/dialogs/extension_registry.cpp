#include "dialogs/extension_registry.h"

#include "model/decimal.h"
#include "model/setting_names.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/settings.h"

#include <algorithm>
#include <string>

namespace veldrin {

namespace {

constexpr char kSlotValue[] = "vdExtNum";
constexpr char kOpenCommand[] = "\\shell\\open\\command";
constexpr char kProgramFile[] = "veldrin.exe";
constexpr int kDesignedEntry = 1;

/// The machine's extension with its dot.
std::string Extension(const Program& program) {
  return "." + program.workspace.MachineKey;
}

/// What the classes root calls the type that a user makes for the extension.
std::string HandMadeType(const Program& program) {
  return program.workspace.MachineKey + "_auto_file";
}

std::string SlotKey(int slot) {
  return ExtensionKey(std::to_string(slot));
}

std::string RemovingCaption(const std::string& extension) {
  return extension + " を関連づけから除外する";
}

std::string OfferingCaption(const Program& program) {
  return Extension(program) + " を「べるどりん君」に関連づける";
}

std::string ReadClass(const Program& program, const std::string& key, const char* value = kDefaultValue) {
  return ReadSetting(program, RegistryRoot::ClassesRoot, key, value);
}

std::string ReadSlot(const Program& program, int slot) {
  return Stored(program, SlotKey(slot), kDefaultValue);
}

void WriteSlot(Program& program, int slot, const std::string& text) {
  Store(program, SlotKey(slot), kDefaultValue, text);
}

void WriteCount(Program& program, int count) {
  Store(program, kExtensionCountValue, std::to_string(count));
}

/// A number of the store. Raises faults 13 and 6.
std::int16_t Number(const Program& program, const std::string& text) {
  return SystemInt16(program.workspace, text);
}

// ---- Entries of the menu ----

void AddEntry(Program& program, int index, const std::string& caption) {
  Menu& entry = program.form2.menu_reg.Load(index);
  entry.Caption = caption;
  entry.Visible = true;
}

/// The entry that the window is described with cannot go: it is hidden.
void HideDesignedEntry(Program& program) {
  Menu& entry = program.form2.menu_reg[kDesignedEntry];
  entry.Visible = false;
  entry.Caption = "";
}

void RemoveLastEntry(Program& program) {
  std::int16_t& last = program.workspace.MenuRegCount;
  if (last == kDesignedEntry) {
    HideDesignedEntry(program);
  } else {
    Guarded([&] { program.form2.menu_reg.Unload(last); });
  }
  --last;
}

void BuildExtensionMenu(Program& program) {
  Workspace& workspace = program.workspace;
  Guarded([&] { workspace.NumExtReg = Number(program, Stored(program, kExtensionCountValue)); });
  // There are no entries below the first, whatever a damaged store says.
  workspace.NumExtReg = std::max<std::int16_t>(workspace.NumExtReg, 0);
  for (int slot = 1; slot <= workspace.NumExtReg; ++slot) {
    AddEntry(program, slot, RemovingCaption("." + ReadSlot(program, slot)));
    ++workspace.MenuRegCount;
  }
}

// ---- A list was loaded ----

/// Whether an open command starts this program.
bool StartsProgram(const std::string& command) {
  return Contains(LowerCase(command), kProgramFile);
}

void OfferRegistration(Program& program) {
  Workspace& workspace = program.workspace;
  workspace.ExtSlot = 0;
  const std::int16_t last = ToInt16(workspace.NumExtReg + 1);
  AddEntry(program, last, OfferingCaption(program));
  workspace.MenuRegCount = last;
}

/// An older or hand-made tie to the program becomes one of the program's own.
/// Kept: its slot number is not written with it, so the next load takes the extension for another program's.
void AdoptAssociation(Program& program) {
  Workspace& workspace = program.workspace;
  const std::int16_t slot = ToInt16(workspace.NumExtReg + 1);
  WriteSetting(program, RegistryRoot::ClassesRoot, Extension(program), kDefaultValue, kFileTypeKey);
  WriteSlot(program, slot, workspace.MachineKey);
  WriteCount(program, slot);
  DeleteKey(program, RegistryRoot::ClassesRoot, HandMadeType(program));
  DeleteKey(program, RegistryRoot::ClassesRoot, Extension(program) + "\\shell");
  workspace.ExtSlot = slot;
  workspace.NumExtReg = slot;
  AddEntry(program, slot, RemovingCaption(Extension(program)));
  ++workspace.MenuRegCount;
  program.machine.shell.AssociateExtension(workspace.MachineKey);
}

/// Kept: where the extension is another program's, `ExtSlot` stays that of the machine before.
void UpdateExtensionMenu(Program& program) {
  Workspace& workspace = program.workspace;
  if (workspace.MenuRegCount > workspace.NumExtReg) RemoveLastEntry(program);
  const std::string type = ReadClass(program, Extension(program));
  const std::string slot = ReadClass(program, Extension(program), kSlotValue);
  if (!slot.empty()) {
    Guarded([&] { workspace.ExtSlot = Number(program, slot); });
    return;
  }
  const std::string command = ReadClass(program, Extension(program) + kOpenCommand);
  if (LowerCase(type) == HandMadeType(program) || StartsProgram(command)) {
    const std::string handMade = ReadClass(program, HandMadeType(program) + kOpenCommand);
    if (StartsProgram(handMade) || StartsProgram(command)) AdoptAssociation(program);
  } else if (type.empty()) {
    OfferRegistration(program);
  }
}

// ---- The offer was taken ----

/// Asks whether to take the extension from the type or program that it is tied to. True without one.
bool MayTakeExtension(Program& program) {
  const std::string type = ReadClass(program, Extension(program));
  const std::string command = ReadClass(program, Extension(program) + kOpenCommand);
  if (type.empty() && command.empty()) return true;
  const std::string text = Extension(program) + " の拡張子はすでに\r\n" + (type.empty() ? command : type) +
                           "\r\nとして関連づけされています。\r\n"
                           "このまま上書きで「べるどりん君」に関連づけますか？";
  return program.machine.boxes.Message(BoxIcon::Question, "", text, BoxButtons::OkCancel) == BoxAnswer::Ok;
}

void ShowInformation(Program& program, const std::string& text) {
  program.machine.boxes.Message(BoxIcon::Information, "", text, BoxButtons::Ok);
}

void RegisterExtension(Program& program) {
  if (!MayTakeExtension(program)) return;
  Workspace& workspace = program.workspace;
  const std::int16_t slot = ToInt16(workspace.NumExtReg + 1);
  WriteSetting(program, RegistryRoot::ClassesRoot, Extension(program), kDefaultValue, kFileTypeKey);
  WriteSetting(program, RegistryRoot::ClassesRoot, Extension(program), kSlotValue, std::to_string(slot));
  workspace.ExtSlot = slot;
  WriteSlot(program, slot, workspace.MachineKey);
  WriteCount(program, slot);
  program.form2.menu_reg[slot].Caption = RemovingCaption(Extension(program));
  workspace.NumExtReg = slot;
  program.machine.shell.AssociateExtension(workspace.MachineKey);
  ShowInformation(program, Extension(program) + "がﾚｼﾞｽﾄﾘに登録されました");
}

// ---- An entry is taken away ----

/// Slot `slot` gets the extension of the one above it.
/// Kept: the history stays with the slot's number.
void MoveSlotDown(Program& program, int slot) {
  WriteSlot(program, slot, ReadSlot(program, slot + 1));
}

void MoveCaptionDown(Program& program, int index) {
  ControlArray<Menu>& entries = program.form2.menu_reg;
  entries[index].Caption = entries[index + 1].Caption;
}

/// The only entry stays and becomes the offer.
/// Kept: it offers the current machine, whichever was removed.
void TurnIntoOffer(Program& program) {
  program.form2.menu_reg[kDesignedEntry].Caption = OfferingCaption(program);
  program.workspace.ExtSlot = 0;
}

/// Closes the gap at `index`. An offer at the end moves down with the entries.
void CloseGap(Program& program, int index) {
  const Workspace& workspace = program.workspace;
  for (int entry = index; entry < workspace.MenuRegCount; ++entry) {
    if (entry < workspace.NumExtReg) MoveSlotDown(program, entry);
    MoveCaptionDown(program, entry);
  }
  DeleteKey(program, RegistryRoot::CurrentUser, SlotKey(workspace.NumExtReg));
  RemoveLastEntry(program);
}

/// Kept: the extension is cut to three letters, so that of another length stays in the classes root and
/// another key goes. `ExtSlot` and the slot numbers of extensions that move down stay as they were. The
/// desktop is told the whole extension.
void RemoveExtension(Program& program, int index) {
  Workspace& workspace = program.workspace;
  const std::string extension = Left(program.form2.menu_reg[index].Caption.get(), 4);
  const std::string onDesktop = ReadSlot(program, index);
  DeleteKey(program, RegistryRoot::CurrentUser, SlotKey(index));
  DeleteKey(program, RegistryRoot::ClassesRoot, extension);
  WriteCount(program, workspace.NumExtReg - 1);
  if (workspace.NumExtReg == 1 && workspace.MenuRegCount == 1) {
    TurnIntoOffer(program);
  } else {
    CloseGap(program, index);
  }
  --workspace.NumExtReg;
  program.machine.shell.DropExtension(onDesktop);
  ShowInformation(program, extension + "はﾚｼﾞｽﾄﾘから削除されました");
}

void menu_reg_Click(Program& program, int index) {
  const Workspace& workspace = program.workspace;
  if (index == workspace.MenuRegCount && workspace.MenuRegCount > workspace.NumExtReg) {
    RegisterExtension(program);
  } else {
    RemoveExtension(program, index);
  }
}

}  // namespace

void AttachExtensionRegistry(Program& program) {
  program.hooks.BuildExtensionMenu = [&program] { BuildExtensionMenu(program); };
  program.hooks.UpdateExtensionMenu = [&program] { UpdateExtensionMenu(program); };
  OnEach(program, program.form2.menu_reg, &Menu::Click, menu_reg_Click);
}

}  // namespace veldrin
