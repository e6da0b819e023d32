#include "dialogs/chooser_boxes.h"

#include "dialogs/load_dispatch.h"
#include "platform/paths.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/chooser_setup.h"
#include "workspace/failure_texts.h"
#include "workspace/language.h"

#include <string>

namespace veldrin {

namespace {

/// The box stays where it is when the folder cannot be gone to, as on a drive that is not ready: no failure
/// of this window ends the program.
void GoTo(FolderBox& box, const std::string& folder) {
  Guarded([&] { box.Path = folder; });
}

void Drive1_Change(Program& program) {
  GoTo(program.form3.Dir1, program.form3.Drive1.Drive);
}

void Drive1_KeyDown(Program& program, int key) {
  if (key == kKeyEnter) SetFocus(program.form3.Dir1);
}

/// The question for a change of machine is for the folder that is left.
void DropMachineQuestion(Program& program) {
  if (!PromptShows(program, kMachineChangeMessage)) return;
  ForgetWaitingList(program);
  program.form3.Label4.Visible = false;
}

void Dir1_Change(Program& program) {
  Form3& form3 = program.form3;
  DropMachineQuestion(program);
  form3.Label3.Caption = form3.Dir1.Path;
  form3.File1.Path = form3.Dir1.Path;
  form3.Command1.Enabled = false;
}

void OpenHighlightedFolder(FolderBox& box) {
  if (box.ListIndex >= 0) GoTo(box, box.entries[static_cast<std::size_t>(box.ListIndex.get())]);
}

/// One level up; from a root to the drive box.
void LeaveFolder(Program& program) {
  const PathRules rules = program.machine.files.Rules();
  FolderBox& box = program.form3.Dir1;
  if (IsRoot(rules, box.Path)) {
    SetFocus(program.form3.Drive1);
  } else {
    GoTo(box, ParentFolder(rules, box.Path));
  }
}

void Dir1_KeyDown(Program& program, int key) {
  Form3& form3 = program.form3;
  form3.Command1.Enabled = false;
  if (key == kKeyEnter) {
    OpenHighlightedFolder(form3.Dir1);
  } else if (key == kKeyBackspace) {
    LeaveFolder(program);
  } else if (key == kKeyLeft) {
    SetFocus(form3.File1);
    // The first entry is picked anew also where it was selected before.
    form3.File1.ListIndex.Put(-1);
    if (!form3.File1.entries.empty()) form3.File1.ListIndex = 0;
  }
}

void File1_Click(Program& program) {
  program.form3.Command1.Enabled = true;
  program.form3.Combo1.Text = program.form3.File1.FileName;
}

/// A name that code selects comes here too; the history rests on that, and holds it back by its word.
void File1_DblClick(Program& program) {
  if (RoleOfChooser(program) == ChooserRole::Delete) return;
  if (program.workspace.CallerWord == caller::kCloseOpen) return;
  program.form3.Command1.Click();
}

/// Back by one against the list's own movement, then over to the folders.
void File1_KeyDown(Program& program, int key) {
  if (key != kKeyRight) return;
  Form3& form3 = program.form3;
  if (form3.File1.ListIndex >= 1) form3.File1.ListIndex = form3.File1.ListIndex - 1;
  form3.Combo1.Text = "";
  form3.Command1.Enabled = false;
  SetFocus(form3.Dir1);
}

void Combo1_Change(Program& program) {
  Form3& form3 = program.form3;
  if (RoleOfChooser(program) == ChooserRole::Save) form3.Command1.Enabled = true;
  if (form3.Combo1.Text.get().empty()) form3.Command1.Enabled = false;
  if (program.workspace.CallerWord != caller::kForm1Timer) form3.Label4.Visible = false;
}

/// Whether a question stands on the prompt line that OK would answer.
bool AsksOnPromptLine(const Program& program) {
  return PromptShows(program, kOverwriteMessage) || PromptShows(program, kMachineChangeMessage);
}

/// Whether OK is to read the file that is selected.
bool ReadsFiles(const Program& program) {
  const ChooserRole role = RoleOfChooser(program);
  return role != ChooserRole::Save && role != ChooserRole::Delete && role != ChooserRole::None;
}

/// A typed name could not be selected, and nothing else is. A pattern is no name.
void TellMissingFile(Program& program, const std::string& name) {
  const bool isName = !Trim(name).empty() && name.find_first_of("*?") == std::string::npos;
  if (isName) ShowFailure(program, kFaultFileNotFound);
}

/// What the chooser shows, as far as Enter in the box for the name goes by it.
struct Standing {
  ChooserRole role;
  bool shown;
  bool prompt;    // something stands on the prompt line
  bool question;  // and OK would answer it
  std::string path;
};

Standing StandingOf(const Program& program) {
  return {RoleOfChooser(program), program.form3.Visible, program.form3.Label4.Visible,
          AsksOnPromptLine(program), program.workspace.DataPath};
}

/// OK ended in a question, which is the user's to answer.
bool HasAsked(const Standing& before, const Standing& after) {
  const bool stoodBefore = before.prompt && before.path == after.path;
  return after.question && !stoodBefore;
}

/// OK was the answer, so that the chooser has gone or stands in another role.
bool HasSaved(const Standing& before, const Standing& after) {
  const bool stillSaving = after.shown && after.role == ChooserRole::Save;
  return before.role == ChooserRole::Save && !stillSaving;
}

bool Otherwise(const Standing& /*before*/, const Standing& /*after*/) {
  return true;
}

void OfferOk(Program& program) {
  program.form3.Command1.Enabled = true;
}

void DoNothing(Program& /*program*/) {}

void RunOk(Program& program) {
  Guarded([&] { program.form3.Command1.Click(); });
}

/// What follows on selecting the typed name, which runs OK already where the file exists, by the double click
/// that it fires. The first row that fits counts.
constexpr struct {
  bool (*fits)(const Standing& before, const Standing& after);
  void (*follow)(Program& program);
} kAfterSelecting[] = {
    {HasAsked, OfferOk},
    {HasSaved, DoNothing},
    {Otherwise, RunOk},
};

/// Selects the typed name, if its extension is the machine's, and runs OK where that is left to do.
void Combo1_Enter(Program& program) {
  Form3& form3 = program.form3;
  const std::string text = form3.Combo1.Text;
  const std::string& key = program.workspace.MachineKey;
  const int dot = Find(text, ".");
  if (dot != 0 && LowerCase(Mid(text, dot + 1, 3)) != key) {
    form3.Combo1.Text = "";
    return;
  }
  const Standing before = StandingOf(program);
  const int fault = Guarded([&] { form3.File1.FileName = dot == 0 ? text + "." + key : text; });
  if (fault == kFaultFileNotFound && ReadsFiles(program) && form3.File1.FileName.get().empty()) {
    TellMissingFile(program, text);
    return;
  }
  const Standing after = StandingOf(program);
  for (const auto& [fits, follow] : kAfterSelecting) {
    if (!fits(before, after)) continue;
    follow(program);
    return;
  }
}

void Combo1_KeyDown(Program& program, int key) {
  if (key == kKeyEnter) {
    Combo1_Enter(program);
  } else if (key == kKeyDown) {
    SetFocus(program.form3.File1);
  }
}

void Combo2_Click(Program& program) {
  Form3& form3 = program.form3;
  form3.Combo1.Text = form3.Combo2.Text;
  form3.File1.Pattern = form3.Combo2.Text;
}

}  // namespace

void AttachChooserBoxes(Program& program) {
  Form3& form3 = program.form3;
  On(program, form3.Drive1.Change, Drive1_Change);
  On(program, form3.Drive1.KeyDown, Drive1_KeyDown);
  On(program, form3.Dir1.Change, Dir1_Change);
  On(program, form3.Dir1.KeyDown, Dir1_KeyDown);
  On(program, form3.File1.Click, File1_Click);
  On(program, form3.File1.DblClick, File1_DblClick);
  On(program, form3.File1.KeyDown, File1_KeyDown);
  On(program, form3.Combo1.Change, Combo1_Change);
  On(program, form3.Combo1.KeyDown, Combo1_KeyDown);
  On(program, form3.Combo2.Click, Combo2_Click);
}

}  // namespace veldrin
