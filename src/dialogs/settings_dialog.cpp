#include "dialogs/settings_dialog.h"

#include "dialogs/other_captions.h"
#include "dialogs/settings_validation.h"
#include "model/decimal.h"
#include "model/setting_names.h"
#include "platform/paths.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/settings.h"

#include <string>

namespace veldrin {

namespace {

constexpr float kOuterWidth = 9600;  // twips
constexpr float kOuterHeight = 6000;

// Subscripts of `Combo1`. There is no element 1, though the loops go over it.
constexpr int kLanguageBox = 0;
constexpr int kQuickQuitBox = 2;
constexpr int kHistoryBox = 3;
constexpr int kFontBox = 4;

// Subscripts of `Text1`; they follow `kConditions`.
constexpr int kTyreBox = 0;
constexpr int kCheckNeBox = 1;
constexpr int kShiftNeBox = 2;
constexpr int kMaxSpeedBox = 3;
constexpr int kMaxNeBox = 4;

// ---- Load: from the second step on a statement that fails is skipped ----

/// Entry 0 stays selected where nothing else is found: a language that is a caption file shows as "JP".
void SelectEntry(ComboBox& box, const std::string& entry) {
  for (std::size_t i = 1; i < box.entries.size(); ++i) {
    if (box.entries[i] == entry) box.ListIndex = static_cast<int>(i);
  }
}

void SelectEntries(Program& program) {
  const Workspace& workspace = program.workspace;
  ControlArray<ComboBox>& boxes = program.form7->Combo1;
  for (const auto& [index, box] : boxes.Elements()) {
    Guarded([&, &each = *box] { each.ListIndex = 0; });
  }
  SelectEntry(boxes[kLanguageBox], workspace.Language);
  SelectEntry(boxes[kQuickQuitBox], workspace.QuickQuit);
  SelectEntry(boxes[kHistoryBox], std::to_string(workspace.HistoryMax));
}

/// Without a printer the box keeps its empty text, which is what is written then.
void ListFonts(Program& program) {
  const Workspace& workspace = program.workspace;
  ComboBox& box = program.form7->Combo1[kFontBox];
  box.FontName = workspace.PrintFont;
  box.FontBold = workspace.PrintFontBold;
  box.FontItalic = workspace.PrintFontItalic;
  if (!program.machine.printer.Available()) {
    box.Enabled = false;
    return;
  }
  for (const std::string& font : program.machine.printer.Fonts()) box.AddItem(font);
  for (std::size_t i = 0; i < box.entries.size(); ++i) {
    if (box.entries[i] == workspace.PrintFont) box.ListIndex = static_cast<int>(i);
  }
}

void FillFields(Program& program) {
  const Workspace& workspace = program.workspace;
  Form7& form7 = *program.form7;
  form7.Text1[kTyreBox].Text = SingleText(workspace, workspace.TyreLength);
  form7.Text1[kCheckNeBox].Text = SingleText(workspace, workspace.CheckNe);
  form7.Text1[kShiftNeBox].Text = std::to_string(workspace.ShiftNe);
  form7.Text1[kMaxSpeedBox].Text = std::to_string(workspace.MaxSpeed);
  form7.Text1[kMaxNeBox].Text = std::to_string(workspace.MaxNe);
  form7.Label11[1].Caption = UpperCase(workspace.MachineName + ".rat");
  const PathRules rules = program.machine.files.Rules();
  form7.Label12[1].Caption = StoredFolder(rules, workspace.ListPath);
  form7.Label13[1].Caption = StoredFolder(rules, workspace.DataPath);
}

/// The folder boxes write their folders over the labels, as the system spells them.
void PointBoxes(Program& program) {
  const Workspace& workspace = program.workspace;
  Form7& form7 = *program.form7;
  Guarded([&] { form7.Drive1.Drive = workspace.ListPath; });
  Guarded([&] { form7.Dir1.Path = workspace.ListPath; });
  Guarded([&] { form7.File1.Path = workspace.ListPath; });
  Guarded([&] { form7.Drive2.Drive = workspace.DataPath; });
  Guarded([&] { form7.Dir2.Path = workspace.DataPath; });
}

void Form7_Load(Program& program) {
  Form7& form7 = *program.form7;
  program.settingsDialog = {};
  form7.Centre(kOuterWidth, kOuterHeight);
  SelectEntries(program);
  ListFonts(program);
  const bool english = program.workspace.Language != kJapanese && CountryCode(program, 0) != kJapan;
  if (english) TakeEnglishCaptions(form7);
  FillFields(program);
  PointBoxes(program);
}

void Form7_Unload(Program& program) {
  program.form2.Show();
}

// ---- Boxes: their failures are nobody's, and end the program ----

void Drive1_Change(Program& program) {
  program.form7->Dir1.Path = program.form7->Drive1.Drive;
}

void Drive2_Change(Program& program) {
  program.form7->Dir2.Path = program.form7->Drive2.Drive;
}

void Dir1_Change(Program& program) {
  Form7& form7 = *program.form7;
  form7.File1.Path = form7.Dir1.Path;
  form7.Label12[1].Caption = form7.Dir1.Path;
}

void Dir2_Change(Program& program) {
  program.form7->Label13[1].Caption = program.form7->Dir2.Path;
}

void File1_Click(Program& program) {
  program.form7->Label11[1].Caption = program.form7->File1.FileName;
}

/// A preview of the font.
void Combo1_Click(Program& program, int index) {
  ComboBox& box = program.form7->Combo1[index];
  if (index == kFontBox) box.FontName = box.Text;
}

// ---- Save ----

void StoreBox(Program& program, int box) {
  Store(program, kConditions[box].setting, StoredNumber(program, box));
}

/// Raises fault 13 for a whole number's box that begins with a number and is none; what stands before it is
/// written then.
void WriteSettings(Program& program) {
  const Form7& form7 = *program.form7;
  const PathRules rules = program.machine.files.Rules();
  for (int box = kTyreBox; box <= kShiftNeBox; ++box) StoreBox(program, box);
  Store(program, kListFileValue, UpperCase(form7.Label11[1].Caption.get()));
  Store(program, kListPathValue, StoredFolder(rules, form7.Label12[1].Caption));
  Store(program, kDataPathValue, StoredFolder(rules, form7.Label13[1].Caption));
  for (int box = kMaxSpeedBox; box <= kMaxNeBox; ++box) StoreBox(program, box);
  Store(program, kHistoryMaxValue,
        std::to_string(SystemInt16(program.workspace, form7.Combo1[kHistoryBox].Text)));
  Store(program, kQuickQuitValue, form7.Combo1[kQuickQuitBox].Text);
  Store(program, kPrintFontValue, form7.Combo1[kFontBox].Text);
  Store(program, kLanguageValue, form7.Combo1[kLanguageBox].Text);
}

/// The language picked plays no part here.
void ShowSavedBox(Program& program) {
  const bool english = program.workspace.Language != kJapanese && CountryCode(program, kJapan) != kJapan;
  program.machine.boxes.Message(BoxIcon::Information, "",
                                english ? "This establishment will be valid when re-start Mr.Veldrin"
                                        : "この設定は次回「べるどりん君」起動時から\r\n有効となります。",
                                BoxButtons::Ok);
}

void SAVE_Click(Program& program) {
  Validate(program);
  if (program.settingsDialog.ValidationResult == kInvalid) {
    program.machine.sound.Beep();
    return;
  }
  WriteSettings(program);
  ShowSavedBox(program);
  program.form7->SAVE.Enabled = false;
  program.form7->CANCEL.Enabled = false;
  program.form7->UnloadWindow();
  program.form2.Show();
}

void CANCEL_Click(Program& program) {
  program.form7->UnloadWindow();
}

}  // namespace

void AttachSettingsDialog(Program& program) {
  program.form7.attach = [&program](Form7& form7) {
    On(program, form7.Load, Form7_Load);
    On(program, form7.Unload, Form7_Unload);
    On(program, form7.Drive1.Change, Drive1_Change);
    On(program, form7.Drive2.Change, Drive2_Change);
    On(program, form7.Dir1.Change, Dir1_Change);
    On(program, form7.Dir2.Change, Dir2_Change);
    On(program, form7.File1.Click, File1_Click);
    OnEach(program, form7.Combo1, &ComboBox::Click, Combo1_Click);
    On(program, form7.SAVE.Click, SAVE_Click);
    On(program, form7.CANCEL.Click, CANCEL_Click);
  };
}

}  // namespace veldrin
