#include "workspace/files/plan_file.h"

#include "model/chart_room.h"
#include "model/decimal.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "workspace/caller.h"
#include "workspace/captions.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/files/plan_lines.h"
#include "workspace/mode.h"
#include "workspace/title.h"

namespace veldrin {

namespace {

// ---- Reading ----

/// Both readers begin here.
void ForgetChanges(Workspace& workspace) {
  workspace.DataChanged = dirty::kNo;
  workspace.RemarkChanged = dirty::kNo;
}

void EmptyChart(Picture& chart) {
  if (chart.Image == 0 && chart.surface.Drawing().empty()) return;
  chart.Image = 0;
  chart.surface.Clear();
}

void ReadRemark(Program& program, TextReader& reader) {
  TextBox& remark = program.form2.Text6;
  remark.Text = "";
  remark.Text = program.workspace.RemarkFirstLine;
  // The further lines are joined first: writing a long remark once for each of its lines would take minutes.
  std::string further;
  while (!reader.AtEnd()) further.append(kCrLf).append(reader.Line());
  if (!further.empty()) remark.Text = remark.Text + further;
}

void ShowRows(Program& program) {
  const Workspace& workspace = program.workspace;
  program.form2.Label6.Caption = workspace.PrimaryTable[workspace.PrimaryIndex].Text;
  program.form2.Label8.Caption = workspace.FinalTable[workspace.FinalIndex].Text;
}

void ShowGears(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  for (int gear = 1; gear <= kGears; ++gear) {
    ShowBaseline(program, gear);
    form2.Label12[gear].Caption = workspace.GearTable(gear, workspace.PlanIndex[gear]);
  }
}

/// Remark, rows, gear pairs and baseline, found in the machine's tables and shown. "MODULE1" stands until the
/// first refresh of the plan.
void TakePlan(Program& program, TextReader& reader) {
  Workspace& workspace = program.workspace;
  ReadChoice(workspace, reader);
  StayUnder(program, caller::kModule1);
  ReadRemark(program, reader);
  FindChoice(workspace);
  ShowRows(program);
  ShowGears(program);
  workspace.ReferenceNe = workspace.ShiftNe;
  // The bar was moved there when the number was read, so nobody hears of it.
  program.form2.HScroll1.Value = workspace.ShiftNe;
}

/// The main window of a plan in force.
void ShowPlanControls(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  // What was half typed goes with the plan before, in the box that no plan has a number for as well.
  form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  form2.Text3.Text = SingleText(workspace, workspace.TyreLength);
  form2.Text4.Text = std::to_string(workspace.ShiftNe);
  ShowAll({&form2.Text6, &form2.Label13, &form2.Picture2, &form2.Picture3, &form2.Picture12, &form2.Picture14,
           &form2.Picture15, &form2.Picture29, &form2.HScroll1, &form2.HScroll2});
  form2.Picture3.BringToFront();
  // Entry by revolutions, which the plan may take the place of, had hidden it.
  form2.Command11.Visible = true;
  HideAll({&form2.Picture4, &form2.Picture9, &form2.Picture30, &form2.Label38});
  EnableAll({&form2.Label6, &form2.Label8, &form2.Command11, &form2.HScroll1, &form2.HScroll2});
  EnableOutput(program, true);
  EnableRowSpins(program);
  form2.f_calc.Enabled = false;
}

/// The first refresh of a plan that was read.
void RefreshAfterReading(Program& program) {
  program.workspace.DataChanged = dirty::kZero;
  Under(program, caller::kRead2, [&] { program.hooks.RefreshDisplay(); });
}

/// The stored speeds belong to other tables: the user chooses between them and the stored plan.
void AskWhatToBelieve(Program& program) {
  // A box that loses the focus because the question disables it has not been left by the user.
  Under(program, caller::kModule1, [&] { AskQuestion(program, Question::SpeedsDiffer); });
}

void ShowPlanMode(Program& program) {
  Form2& form2 = program.form2;
  form2.Picture31.Visible = true;
  form2.Label43.Caption = kPlanShown;
  form2.Picture1.Visible = false;
  form2.Command4.Enabled = true;
  form2.f_comp.Enabled = true;
  form2.Label12[3].BackColor = kLightGrey;
  form2.Label12[4].BackColor = kLightGrey;
}

void ShowConditionsInForce(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  form2.Text3.Text = SingleText(workspace, workspace.TyreLength);
  form2.Text4.Text = std::to_string(workspace.ShiftNe);
  form2.HScroll1.Value = workspace.ShiftNe;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (workspace.SpeedBaseline[gear] != 0) Guarded([&] { ShowBaseline(program, gear); });
  }
}

/// A file that was refused half-way leaves behind what was read of it. The boxes, the bars and the columns
/// show what is in force then.
void ShowWhatIsInForce(Program& program) {
  const Workspace& workspace = program.workspace;
  Under(program, caller::kInit, [&] { ShowConditionsInForce(program); });
  // What was read is no change of the user's.
  if (HasPlanOnShow(workspace))
    Under(program, caller::kScroll, [&] { Guarded([&] { program.hooks.RefreshPlan(); }); });
}

// ---- The two readers ----

void ReadOpenPlan(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  TextReader& reader = program.files.Reader(Handle::Reader);
  ForgetChanges(workspace);
  EmptyChart(form2.Picture21);
  workspace.ResultWord = result::kOk;

  workspace.TyreLength = ReadDecimal(workspace, reader);
  workspace.ShiftNe = ToInt16(ReadDecimal(workspace, reader));
  if (WidenRevolutions(workspace)) program.hooks.ChartScale();
  form2.HScroll1.Value = workspace.ShiftNe;
  ReadStoredSpeeds(workspace, reader);
  if (RaiseTopSpeed(workspace)) program.hooks.ChartScale();
  TakePlan(program, reader);

  workspace.DataFile = workspace.OpenFile;
  form2.Caption = PlanTitle(program, LastPartOf(program.machine.files.Rules(), workspace.DataFile));
  ShowPlanControls(program);
  workspace.ModeWord = mode::kChange;
  program.files.Close(Handle::Reader);
  program.form3.Hide();

  // The working file is written below; a plan made before this one must not hold the flag back.
  workspace.WorkFileStale = false;
  RefreshAfterReading(program);
  if (workspace.ResultWord == result::kDifferent) AskWhatToBelieve(program);
  ShowPlanMode(program);
  program.hooks.Loaded();
  const int fault = Guarded([&] { WriteWorkFile(program); });
  if (fault != 0) {
    // A stale working file holds the dirty flag where it is: edits that it could not tell must not be lost.
    workspace.DataChanged = dirty::kYes;
    Raise(fault);
  }
  EnableRestore(program, false);
}

void ReadWorkFile(Program& program, TextReader& reader) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  StayUnder(program, caller::kOriginal);  // until the plan's remark is read
  ForgetChanges(workspace);
  form2.Picture21.surface.Clear();
  workspace.ResultWord = result::kOk;

  workspace.TyreLength = ReadDecimal(workspace, reader);
  workspace.ShiftNe = ToInt16(ReadDecimal(workspace, reader));
  form2.HScroll1.Value = workspace.ShiftNe;
  ReadStoredSpeeds(workspace, reader);
  TakePlan(program, reader);

  UnmarkTitle(program);
  ShowPlanControls(program);
  if (workspace.ModeWord != mode::kData) workspace.ModeWord = mode::kChange;
  ReturnToMode(program, mode::kChange);
  // The chooser stays: a save restores from inside its OK and may go on in another role.

  RefreshAfterReading(program);
  ShowPlanMode(program);
  EnableRestore(program, false);
  program.hooks.Restored();
}

/// Reads a plan; one that is refused shows how far it came.
template <class Read>
void ReadOrShowHowFar(Program& program, Read read) {
  const int fault = Guarded(read);
  if (fault == 0) return;
  ShowWhatIsInForce(program);
  Raise(fault);
}

}  // namespace

void ReadPlanFile(Program& program) {
  DropQuestion(program);  // its plan gives way
  ReadOrShowHowFar(program, [&] { ReadOpenPlan(program); });
}

bool RestorePlan(Program& program) {
  // Read at one stroke and not through a handle, so that a fault on the way leaves none open.
  TextReader reader(program.machine.files.ReadText(program.workspace.WorkFile));
  if (reader.AtEnd() || !NamesLoadedMachine(program.workspace, reader.Line())) return false;
  ReadOrShowHowFar(program, [&] { ReadWorkFile(program, reader); });
  return true;
}

void SavePlanFile(Program& program) {
  program.files.Write(Handle::Plan, PlanText(program.workspace, program.form2.Text6.Text));
  WriteWorkFile(program);
  program.workspace.DataChanged = dirty::kNo;
  EnableRestore(program, true);
}

void WriteWorkFile(Program& program) {
  Workspace& workspace = program.workspace;
  const std::string text = PlanText(workspace, program.form2.Text6.Text);
  Guarded([&] { program.machine.files.Delete(workspace.WorkFile); });
  const int fault = Guarded([&] {
    program.files.OpenOutput(Handle::WorkFile, workspace.WorkFile);
    program.files.Write(Handle::WorkFile, text);
    program.files.Close(Handle::WorkFile);
  });
  program.files.Abandon(Handle::WorkFile);
  workspace.WorkFileStale = fault != 0;
  if (fault != 0) Raise(fault);
}

}  // namespace veldrin
