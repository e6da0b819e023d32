#include "dialogs/file_chooser.h"

#include "dialogs/chooser_boxes.h"
#include "dialogs/chooser_save.h"
#include "dialogs/load_dispatch.h"
#include "dialogs/reference_file.h"
#include "mainwin/chart.h"
#include "model/list_tables.h"
#include "platform/paths.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/chooser_setup.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/failure_texts.h"
#include "workspace/files/kept_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/working_files.h"
#include "workspace/language.h"
#include "workspace/mode.h"

#include <string>

namespace veldrin {

namespace {

constexpr int kLongestNameToExtend = 8;

/// The running conditions go to their boxes, and the default machine is opened.
void Form3_Load(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Form3& form3 = program.form3;
  form3.Label4.Caption = Message(workspace, kMissingFileMessage);
  if (workspace.IsJapanese == 1) form3.Label4.FontName = "ＭＳ ゴシック";
  form3.Centre();
  form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  form2.Text3.Text = SingleText(workspace, workspace.TyreLength);
  form2.Text4.Text = std::to_string(workspace.ShiftNe);
  workspace.ReferenceNe = workspace.ShiftNe;
  OpenAnyFile(program, JoinPath(program.machine.files.Rules(), workspace.ListPath, workspace.ListFile));
  ChartScale(program);
}

void Form3_Activate(Program& program) {
  program.form3.Dir1.Refresh();
}

/// The chooser hides when another window, or another program, becomes active. What hides it from inside looks
/// after the machine by itself.
void Form3_Deactivate(Program& program) {
  const bool leftByUser = program.form3.Visible;
  program.form3.Command1.Caption = "O K";
  program.form3.Hide();
  if (leftByUser) SettleMachine(program);
}

/// The close box is CANCEL: the window lives as long as the program, which only its main window ends.
void Form3_QueryUnload(Program& program, int reason) {
  program.form3.closeRefused = reason != static_cast<int>(CloseReason::Code);
  if (reason == static_cast<int>(CloseReason::User)) program.form3.Command2.Click();
}

std::string ChosenPath(const Program& program, const std::string& name) {
  return JoinPath(program.machine.files.Rules(), program.workspace.TempDir, name);
}

/// The typed name, with the machine's extension where it has another one and is short.
/// Kept: a long name without an extension is taken as typed.
std::string NameToDelete(const Program& program) {
  const std::string text = program.form3.Combo1.Text;
  const std::string& key = program.workspace.MachineKey;
  const std::string tail = LowerCase(Mid(text, Find(text, ".") + 1));
  return tail != key && Length(text) <= kLongestNameToExtend ? text + "." + key : text;
}

void HideClearingEntry(Program& program) {
  program.form2.menu_files[0].Visible = false;
  program.form2.menu_his_clear[0].Visible = false;
  program.form2.menu_his_clear[1].Visible = false;
}

/// The file system is asked for the name first, so a pattern deletes nothing. A file that does not go is told
/// by the cause.
/// Kept: whatever came of it, the button reads "OK" afterwards, and a file that is not there is not reported.
void DeleteFile(Program& program) {
  const std::string name = NameToDelete(program);
  const std::string path = ChosenPath(program, name);
  const bool found = EqualsIgnoringCase(program.machine.files.FindFirst(path), name);
  const int fault = found ? Guarded([&] { program.machine.files.Delete(path); }) : 0;
  if (fault != 0) {
    ShowFailure(program, fault);
  } else if (found) {
    if (RemoveFromHistory(program, path)) HideClearingEntry(program);
    program.form3.Hide();
    program.form2.Show();
  }
  program.form3.Command1.Caption = "OK";
}

void LoadList(Program& program) {
  Workspace& workspace = program.workspace;
  KeepMachine(program);
  workspace.ListPath = workspace.TempDir;
  StayUnder(program, caller::kForm3);  // until a reader sets its own
  program.form3.Command1.Enabled = false;
  SaveHistory(program);
  ClearMachine(workspace);
  OpenAnyFile(program, ChosenPath(program, program.form3.File1.FileName));
  program.form2.Show();
}

/// A list file was picked for a plan, and the user has confirmed the change of machine: the file is still
/// open, behind its tag. The history of the machine that leaves is stored, as before any other list.
void ReadConfirmedList(Program& program) {
  KeepMachine(program);
  SaveHistory(program);
  ClearMachine(program.workspace);
  ReadMachineList(program);
  program.chooser.waitingList.clear();
  program.form2.Text6.Text = "";
  program.form3.Label4.Caption = "";
  program.form3.Label4.Visible = false;
}

/// Kept: a question that a change of the name has dropped leaves its list open, and the next OK fails on
/// that.
void LoadData(Program& program) {
  Workspace& workspace = program.workspace;
  const std::string path = ChosenPath(program, program.form3.File1.FileName);
  workspace.DataPath = workspace.TempDir;
  if (PromptShows(program, kMachineChangeMessage)) {
    if (EqualsIgnoringCase(path, program.chooser.waitingList)) return ReadConfirmedList(program);
    // Another file, or one of the same name elsewhere, was picked under the question.
    ForgetWaitingList(program);
    program.form3.Label4.Visible = false;
  }
  StayUnder(program, caller::kForm3DataLoad);  // until a reader sets its own
  OpenAnyFile(program, path);
}

/// Whether there is a file, or a name of one, for OK to work on.
bool HasChoice(const Program& program, ChooserRole role) {
  const Form3& form3 = program.form3;
  switch (role) {
    case ChooserRole::Delete:
      return !Trim(form3.Combo1.Text.get()).empty();
    case ChooserRole::LoadList:
    case ChooserRole::LoadData:
    case ChooserRole::QuickRatio:
    case ChooserRole::Reference:
      return !form3.File1.FileName.get().empty();
    case ChooserRole::Save:
    case ChooserRole::None:
      return true;
  }
  return true;
}

void RunRole(Program& program, ChooserRole role) {
  switch (role) {
    case ChooserRole::LoadList:
      return LoadList(program);
    case ChooserRole::LoadData:
      return LoadData(program);
    case ChooserRole::Save:
      return SaveFromChooser(program);
    case ChooserRole::Delete:
      return DeleteFile(program);
    case ChooserRole::QuickRatio:
      return LoadQuickRatioFile(program);
    case ChooserRole::Reference:
      return LoadReferenceFile(program);
    case ChooserRole::None:
      return ConfirmSave(program);
  }
}

/// OK. The folder chosen is kept in the variable of the temporary folder, which who needs that reads anew.
void Command1_Click(Program& program) {
  program.workspace.TempDir = TrimRoot(program.machine.files.Rules(), program.form3.File1.Path);
  const ChooserRole role = RoleOfChooser(program);
  if (!HasChoice(program, role)) return;
  RunRole(program, role);
  if (!program.form3.Visible) SettleMachine(program);
}

/// The user has backed out of "Save and Load" or "Not save. Load": the plan counts as unsaved again, the mode
/// is that of what is on show, and the working file leads back to what was saved.
void CancelPendingLoad(Program& program) {
  Workspace& workspace = program.workspace;
  const bool pendingLoad = workspace.PendingAction == pending::kChangeLoad ||
                           workspace.PendingAction == pending::kChangeLoadHistory;
  if (pendingLoad) {
    workspace.DataChanged = dirty::kYes;
    workspace.PendingAction = pending::kNone;
  }
  EndAnsweredLoad(program);
  if (pendingLoad && HasPlanOnShow(workspace) && !workspace.WorkFileStale) EnableRestore(program, true);
}

/// CANCEL.
void Command2_Click(Program& program) {
  Workspace& workspace = program.workspace;
  Form3& form3 = program.form3;
  SettleMachine(program);
  const ChooserRole role = RoleOfChooser(program);
  if (role == ChooserRole::LoadData) {
    form3.Label4.Visible = false;
    program.files.Close(Handle::Reader);
    form3.Command1.Enabled = false;
  } else if (form3.Caption == "Save BMP File Select") {
    // Kept: no command opens the chooser under this title today.
    workspace.ResultWord = result::kCancel;
  } else if (role != ChooserRole::LoadList && role != ChooserRole::Delete) {
    if (PromptShows(program, kOverwriteMessage)) {
      form3.Label4.Caption = Message(workspace, kMachineChangeMessage);
      form3.Label4.Visible = false;
    }
    form3.Command1.Enabled = false;
  }
  form3.Combo2.Visible = true;
  form3.Combo1.Visible = true;
  form3.File1.Visible = true;
  form3.Label1.Visible = true;
  CancelPendingLoad(program);
  form3.Hide();
  program.form2.Show();
}

/// QUIT.
void Command3_Click(Program& program) {
  Guarded([&] { program.machine.files.Delete(program.workspace.WorkFile); });
  throw EndOfProgram{};
}

}  // namespace

void AttachFileChooser(Program& program) {
  Form3& form3 = program.form3;
  On(program, form3.Load, Form3_Load);
  On(program, form3.QueryUnload, Form3_QueryUnload);
  On(program, form3.Activate, Form3_Activate);
  On(program, form3.Deactivate, Form3_Deactivate);
  On(program, form3.Command1.Click, Command1_Click);
  On(program, form3.Command2.Click, Command2_Click);
  On(program, form3.Command3.Click, Command3_Click);
  AttachChooserBoxes(program);
}

}  // namespace veldrin
