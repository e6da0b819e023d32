#include "workspace/files/machine_list.h"

#include "model/file_tags.h"
#include "model/list_tables.h"
#include "platform/paths.h"
#include "runtime/text.h"
#include "workspace/caller.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/failure_texts.h"
#include "workspace/files/kept_machine.h"
#include "workspace/files/plan_file.h"
#include "workspace/files/working_files.h"
#include "workspace/history_menu.h"
#include "workspace/language.h"
#include "workspace/notice_words.h"
#include "workspace/settings.h"
#include "workspace/title.h"

#include <string>

namespace veldrin {

namespace {

constexpr char kBadCommandLine[] = "Bad Command-line Option or Bad File-name or File-type.";
constexpr char kBadCommandLineJapanese[] =
    "コマンドライン引数か、そのファイル名またはファイルの種類が違います";

/// Brings to the front what the chooser's prompt line tells of a refused file.
void ShowRefusal(Program& program) {
  Form3& form3 = program.form3;
  form3.Label4.Visible = true;
  form3.Label4.BringToFront();
  form3.Command1.Enabled = false;
}

void ResetDisplay(Program& program) {
  Form2& form2 = program.form2;
  for (int gear = 1; gear <= kGears; ++gear) {
    form2.Label2[gear].Caption = "";
    form2.Text1[gear].Text = "";
  }
  for (int step = 1; step < kGears; ++step) {
    form2.Label39[step].Caption = "";
    form2.Label25[step].Caption = "";
  }
  EmptyHistoryMenu(program);
}

/// The boxes show what is in force under the list's keys.
void ShowConditions(Program& program) {
  const Workspace& workspace = program.workspace;
  program.form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  program.form2.Text3.Text = SingleText(workspace, workspace.TyreLength);
  program.form2.Text4.Text = std::to_string(workspace.ShiftNe);
}

/// The main window of a machine without a plan.
void ShowNoPlan(Program& program) {
  Form2& form2 = program.form2;
  DisableAll({&form2.Label6, &form2.Label8});
  DisableSpin(form2.Spin4);
  DisableSpin(form2.Spin5);
  HideAll({&form2.Label38, &form2.Label13, &form2.Text6, &form2.Picture1, &form2.Picture2, &form2.Picture3,
           &form2.Picture4, &form2.Picture9, &form2.Picture12, &form2.Picture30, &form2.Picture31});
  // What they list is the machine's that was.
  for (int gear = 1; gear <= kGears; ++gear) form2.Picture23[gear].Visible = false;
  form2.Picture24.Visible = false;
  form2.Text6.Text = "";
  form2.Picture21.surface.Clear();
  EnableOutput(program, false);
  DisableAll({&form2.Command7, &form2.f_calc, &form2.f_rest, &form2.HScroll1, &form2.HScroll2});
  form2.Label12[3].BackColor = kLightGrey;
  form2.Label12[4].BackColor = kLightGrey;
}

/// The list of the start is nobody's doing, and nothing is said of it.
void TellLoaded(Program& program) {
  if (!program.form2.Visible) return;
  const Workspace& workspace = program.workspace;
  const std::string primaries = std::to_string(workspace.PrimaryCount);
  const std::string finals = std::to_string(FinalRowCount(workspace));
  const std::string rows = std::to_string(workspace.GearRows);
  Inform(program, {workspace.MachineName + ": " + primaries + " primary ratios, " + finals +
                       " final ratios, up to " + rows + " pairs in each gear",
                   workspace.MachineName + ": プライマリー " + primaries + " 種、ファイナル " + finals +
                       " 種、各ギヤ最大 " + rows + " 組"});
}

/// The file asked for a list and a plan was wanted: it stays open until the user confirms the change of
/// machine with a second OK, for which the chooser is shown again from outside its own OK.
void AskForChangeOfMachine(Program& program, const std::string& path) {
  program.chooser.waitingList = path;
  program.form3.Label4.Caption = Message(program.workspace, kMachineChangeMessage);
  program.workspace.ResultWord = result::kAnotherList;
  program.form3.Label4.Visible = true;
  program.form3.Hide();
  program.form2.Timer2.Enabled = true;
}

void OpenPlanFile(Program& program, const std::string& path, const std::string& tag) {
  Workspace& workspace = program.workspace;
  workspace.OpenFile = path;
  const std::string name = MachineOfPlan(tag);
  if (workspace.LoadedMachine.empty()) KeepMachine(program);
  if (workspace.MachineKey.empty()) {
    workspace.MachineName = UpperCase(name);
    workspace.MachineKey = LowerCase(workspace.MachineName);
    program.files.Close(Handle::Reader);
    workspace.ResultWord = result::kData;
  } else if (workspace.MachineKey != LowerCase(name)) {
    program.files.Close(Handle::Reader);
    workspace.MachineName = name;
    workspace.ResultWord = result::kAnother;
  } else {
    // A plan of another machine may have been tried before this one.
    if (!workspace.LoadedMachine.empty()) workspace.MachineName = workspace.LoadedMachine;
    AddToHistory(program, path);
    workspace.DataPath = FolderOf(program.machine.files.Rules(), path);
    ReadPlanFile(program);
  }
}

/// Whether the user waits for the answer at the chooser, and not the start.
bool ChooserAsked(const Workspace& workspace) {
  const std::string& word = workspace.CallerWord;
  return word == caller::kForm3 || word == caller::kForm3DataLoad || word == caller::kCloseOpen;
}

/// Answers a file of no known kind (fault 0) or a fault on the way in. What failed for the file system's
/// reasons is told by its cause; what was read and not understood is a file of no known kind.
void RefuseFile(Program& program, const std::string& path, int fault) {
  Workspace& workspace = program.workspace;
  Form3& form3 = program.form3;
  form3.Label4.Caption = Message(workspace, kUnknownKindMessage);
  program.files.Close(Handle::Reader);
  workspace.ResultWord = result::kNotGood;
  RemoveFromHistory(program, path);
  if (program.hooks.FileRefused) program.hooks.FileRefused(path, fault);
  const bool missing = fault == kFaultBadFileName || fault == kFaultFileNotFound ||
                       fault == kFaultPathAccess || fault == kFaultPathNotFound;
  if (missing && workspace.CallerWord == caller::kForm1) {
    ShowBadCommandLine(program);
  } else if (missing && workspace.CallerWord == caller::kForm3) {
    form3.Label4.Caption = Message(workspace, kMissingFileMessage);
    form3.Label4.Visible = true;
  } else {
    if (ChooserAsked(workspace) && IsFileFault(fault)) form3.Label4.Caption = FailureText(workspace, fault);
    ShowRefusal(program);
  }
}

/// Reads the tag and hands the file to the reader of its kind. False for a file of no known kind.
bool OpenByTag(Program& program, const std::string& path) {
  program.files.OpenInput(Handle::Reader, path);
  const std::string tag = program.files.Reader(Handle::Reader).Field();
  if (IsListTag(tag)) {
    if (program.workspace.CallerWord == caller::kForm3DataLoad) {
      AskForChangeOfMachine(program, path);
    } else {
      ReadMachineList(program);
    }
    return true;
  }
  if (IsPlanTag(tag)) {
    OpenPlanFile(program, path, tag);
    return true;
  }
  return false;
}

}  // namespace

void ShowBadCommandLine(Program& program) {
  const bool japanese = CountryCode(program, 0) == kJapan;
  program.machine.boxes.Message(BoxIcon::Exclamation, "",
                                japanese ? kBadCommandLineJapanese : kBadCommandLine, BoxButtons::Ok);
}

void OpenAnyFile(Program& program, const std::string& path) {
  try {
    if (!OpenByTag(program, path)) RefuseFile(program, path, 0);
  } catch (const RuntimeFault& fault) {
    RefuseFile(program, path, fault.number);
  }
}

void ReadMachineList(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  KeepMachine(program);
  workspace.LoadedMachine.clear();
  workspace.ResultWord = result::kOk;
  program.form3.Command3.Visible = false;
  workspace.DataChanged = dirty::kNo;
  workspace.RemarkChanged = dirty::kNo;
  workspace.SpeedBaseline.Clear();
  ResetDisplay(program);

  // Without a waiting file every field is missing, and the first keyword fails.
  TextReader nothing("");
  const bool open = program.files.IsOpen(Handle::Reader);
  const std::string path = program.files.PathOf(Handle::Reader);
  workspace.LoadedList = path;
  TextReader& reader = open ? program.files.Reader(Handle::Reader) : nothing;
  const bool understood = ReadListTables(reader, workspace);
  program.files.Close(Handle::Reader);
  if (!understood) {
    workspace.ResultWord = result::kNotGood;
    program.form3.Label4.Caption = Message(workspace, kUnknownKindMessage);
    ShowRefusal(program);
    if (program.hooks.FileRefused) program.hooks.FileRefused(path, 0);
    return;
  }

  ForgetKeptMachine(program);
  workspace.LoadedMachine = workspace.MachineName;
  ShowConditions(program);
  Guarded([&] { program.hooks.UpdateExtensionMenu(); });
  Guarded([&] { LoadHistory(program); });
  Guarded([&] { program.hooks.ChartScale(); });
  BuildFinalTable(workspace);
  SortTables(workspace);
  form2.Caption = MachineTitle(workspace);

  StayUnder(program, caller::kModule1);  // until the next word
  workspace.PrimaryIndex = 1;
  workspace.FinalIndex = 1;
  form2.Label6.Caption = workspace.PrimaryTable[1].Text;
  form2.Label8.Caption = workspace.FinalTable[1].Text;
  DropQuestion(program);  // its plan has gone
  ShowNoPlan(program);
  workspace.ModeWord = mode::kBasing;
  workspace.DataChanged = dirty::kZero;
  program.form3.Hide();
  program.hooks.Loaded();
  TellLoaded(program);
}

}  // namespace veldrin
