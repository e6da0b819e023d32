#include "dialogs/chooser_save.h"

#include "platform/paths.h"
#include "runtime/text.h"
#include "workspace/chooser_setup.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/decision_panel/decision_panel_answers.h"
#include "workspace/failure_texts.h"
#include "workspace/files/plan_file.h"
#include "workspace/files/working_files.h"
#include "workspace/history_reopen.h"
#include "workspace/language.h"
#include "workspace/notice_words.h"
#include "workspace/title.h"

#include <string>

namespace veldrin {

namespace {

/// The typed name, with the machine's extension behind it unless it has that.
/// Kept: a name with another extension gets a second one.
std::string NameToSave(const Program& program) {
  const std::string text = program.form3.Combo1.Text;
  const std::string extension = "." + program.workspace.MachineKey;
  return LowerCase(Right(text, Length(extension))) == extension ? text : text + extension;
}

std::string TargetPath(const Program& program) {
  return JoinPath(program.machine.files.Rules(), program.workspace.TempDir, program.workspace.SaveName);
}

/// The save would overwrite the file that waits to be loaded from the history.
bool TargetIsReserved(const Program& program) {
  const Workspace& workspace = program.workspace;
  const Form2& form2 = program.form2;
  return workspace.PendingAction == pending::kChangeLoadHistory &&
         form2.menu_files.Has(workspace.PendingHistoryIndex) &&
         form2.menu_files[workspace.PendingHistoryIndex].Caption == LowerCase(TargetPath(program));
}

void MakeProgramFolderCurrent(Program& program) {
  Guarded([&] { program.machine.files.SetCurrentFolder(program.workspace.AppPath); });
}

/// The save has not come about, though it may have made the plan its own baseline: the plan stays unsaved, by
/// whatever it deviates, until it is saved or another one is read.
void CountAsUnsaved(Program& program) {
  program.workspace.DataChanged = dirty::kYes;
  program.workspace.RemarkChanged = dirty::kYes;
  if (program.workspace.WorkFileStale) return;
  EnableRestore(program, true);
  MarkTitle(program);
}

/// Writes the plan. False when that failed: the prompt line tells the cause, the file stays as it was, and
/// the plan counts as unsaved.
bool WritePlan(Program& program) {
  const int fault = Guarded([&] {
    program.files.OpenOutput(Handle::Plan, TargetPath(program));
    SavePlanFile(program);
    AddToHistory(program, TargetPath(program));
    RestorePlan(program);
    program.files.Close(Handle::Plan);
  });
  if (fault == 0) {
    DropQuestion(program);  // the changes that it asked about are saved
    program.hooks.Saved();
    TellSaved(program, TargetPath(program));
    return true;
  }
  program.files.Abandon(Handle::Plan);
  CountAsUnsaved(program);
  ShowFailure(program, fault);
  TellNotSaved(program, TargetPath(program), fault);
  return false;
}

void TitleSavedPlan(Program& program) {
  program.form2.Caption = PlanTitle(program, program.workspace.SaveName);
}

/// Kept: the entry is named by its place, and the save has moved the entries.
void ReopenWaitingEntry(Program& program) {
  program.form3.Hide();
  ReopenFromHistory(program, program.workspace.PendingHistoryIndex);
  program.form2.Show();
}

/// What follows the save of a new file.
void FinishNewFile(Program& program, const std::string& modeWord) {
  const std::string& pendingAction = program.workspace.PendingAction;
  if (pendingAction == pending::kEnding) throw EndOfProgram{};
  if (pendingAction == pending::kChangeLoadHistory) return ReopenWaitingEntry(program);
  if (pendingAction == pending::kChangeLoad) {
    OpenChooserFor(program, modeWord);
    TitleSavedPlan(program);
    return;
  }
  TitleSavedPlan(program);
  MakeProgramFolderCurrent(program);
  LeaveChooser(program);
}

/// What follows the save over an existing file.
/// Kept: it differs from a new file's in three points: the title names the saved file also after an entry of
/// the history was loaded, "LIST" runs no opener, and the chooser is hidden after the opener.
void FinishOverwrittenFile(Program& program, const std::string& modeWord) {
  const std::string pendingAction = program.workspace.PendingAction;
  if (pendingAction == pending::kEnding) throw EndOfProgram{};
  if (pendingAction == pending::kChangeLoad) {
    if (modeWord != mode::kList) OpenChooserFor(program, modeWord);
    TitleSavedPlan(program);
    program.form3.Hide();
    return;
  }
  if (pendingAction == pending::kChangeLoadHistory) ReopenWaitingEntry(program);
  TitleSavedPlan(program);
  MakeProgramFolderCurrent(program);
  program.form3.Label4.Caption = Message(program.workspace, kMachineChangeMessage);
  program.form3.Label4.Visible = false;
  LeaveChooser(program);
}

/// Nothing but the extension is no name.
bool IsName(const Program& program, const std::string& name) {
  const std::string last = Trim(LastPartOf(program.machine.files.Rules(), name));
  return !EqualsIgnoringCase(last, "." + program.workspace.MachineKey);
}

void FirstOk(Program& program) {
  Workspace& workspace = program.workspace;
  const std::string name = NameToSave(program);
  if (!IsName(program, name)) return;
  workspace.SaveName = name;
  Guarded([&] { program.machine.files.SetCurrentFolder(program.form3.File1.Path); });
  workspace.DataPath = workspace.TempDir;
  if (TargetIsReserved(program)) {
    program.form3.Command1.Enabled = false;
    ShowChooserPrompt(program, kReservedTargetMessage);
    return;
  }
  // A name with a folder in it is not among the folder's names, but its file may be there all the same.
  const Files& files = program.machine.files;
  const std::string found = files.FindFirst(TargetPath(program));
  if (LowerCase(found) == LowerCase(workspace.SaveName) || files.FileExists(TargetPath(program))) {
    ShowChooserPrompt(program, kOverwriteMessage);
    MakeProgramFolderCurrent(program);
    return;
  }
  // The plan's restore changes the word that the tail is to act on.
  const std::string modeWord = workspace.ModeWord;
  if (WritePlan(program)) FinishNewFile(program, modeWord);
}

/// The question was for the folder that was shown then, which the first OK made the one for plans.
bool AskedForThisFolder(const Program& program) {
  return LowerCase(program.workspace.DataPath) == LowerCase(program.workspace.TempDir);
}

bool AsksToOverwrite(const Program& program) {
  return PromptShows(program, kOverwriteMessage);
}

/// The old file goes when the new one is complete and takes its place, by the name that was typed.
void Overwrite(Program& program) {
  const std::string modeWord = program.workspace.ModeWord;
  if (!WritePlan(program)) return;
  Guarded([&] { program.machine.files.Respell(TargetPath(program)); });
  FinishOverwrittenFile(program, modeWord);
}

}  // namespace

// What an earlier try failed by is no question: the next OK, as by Enter in another folder, is a first one.
void SaveFromChooser(Program& program) {
  Label& prompt = program.form3.Label4;
  const bool otherFolder = AsksToOverwrite(program) && !AskedForThisFolder(program);
  if (otherFolder || ShowsFailure(program)) prompt.Visible = false;
  if (prompt.Visible) {
    ConfirmSave(program);
  } else {
    FirstOk(program);
  }
}

void ConfirmSave(Program& program) {
  if (AsksToOverwrite(program) && AskedForThisFolder(program)) Overwrite(program);
}

}  // namespace veldrin
