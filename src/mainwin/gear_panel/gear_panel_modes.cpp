#include "mainwin/gear_panel/gear_panel_modes.h"

#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "mainwin/search.h"
#include "runtime/conversion.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/control_states.h"

#include <string>

namespace veldrin {

namespace {

// ---- A: from "BASING" to "CHANGE" ----

/// Kept: the label shows the lowest usable row, also where the plan stands at another one, as for a gear
/// whose only pair is in the last row.
void ShowFirstRows(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  form2.Label6.Caption = workspace.PrimaryTable[workspace.PrimaryIndex].Text;
  form2.Label8.Caption = workspace.FinalTable[workspace.FinalIndex].Text;
  form2.Text6.Visible = true;
  for (int gear = 1; gear <= kGears; ++gear) {
    form2.Label12[gear].Caption = workspace.GearTable(gear, workspace.GearFirstRow[gear]);
  }
}

/// Revolutions beyond the bars' ends stand as they are; the thumbs then stand at the ends.
void ShowScrollBars(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  const auto show = [](ScrollBar& bar, int value) {
    bar.Enabled = true;
    bar.Visible = true;
    bar.Value = value;
  };
  show(form2.HScroll1, workspace.ShiftNe);
  show(form2.HScroll2, ToInt16(workspace.CheckNe));
}

/// The baseline that the first refresh takes belongs to the revolutions of that refresh.
void ShowFirstPlan(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  ShowFirstRows(program);
  ShowAll({&form2.Picture2, &form2.Picture3, &form2.Picture12});
  form2.Picture12.BringToFront();
  ShowAll({&form2.Label13, &form2.Picture29});
  form2.Picture15.Visible = false;
  // Entry by revolutions hides it, and may have been left by a load.
  form2.Command11.Visible = true;
  EnableAll({&form2.Command11, &form2.Label6, &form2.Label8});
  EnableRowSpins(program);
  workspace.ReferenceNe = workspace.ShiftNe;
  ShowScrollBars(program);
  RefreshDisplay(program);
}

/// Kept: the working file is stale from here on, so refreshes never mark this plan as changed until a plan
/// is read or saved. The refresh of the first showing runs before the word is set.
void MakeFirstPlan(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  EnableAll({&form2.Command4, &form2.f_comp});
  Under(program, caller::kModule1, [&] { ShowFirstPlan(program); });
  workspace.ModeWord = mode::kChange;
  workspace.WorkFileStale = true;
  form2.Picture31.Visible = true;
  form2.Label43.Caption = kPlanShown;
  form2.f_calc.Enabled = false;
  EnableOutput(program, true);
}

// ---- B: from "CHANGE" to "SPEED" ----

/// A gear without a request starts from its baseline.
void ShowSpeedRequests(Program& program) {
  Workspace& workspace = program.workspace;
  for (int gear = 1; gear <= kGears; ++gear) {
    float& request = workspace.SpeedRequest[gear];
    if (request == 0) request = ToSingle(RoundHalfToEven(workspace.SpeedBaseline[gear]));
    program.form2.Text1[gear].Text = SingleText(workspace, request);
  }
}

void OpenRequests(Program& program) {
  Form2& form2 = program.form2;
  program.workspace.ModeWord = mode::kSpeed;
  form2.Picture31.Visible = true;
  form2.Label43.Caption = kRequestsShown;
  form2.Picture9.Visible = false;
  form2.f_calc.Enabled = true;
  EnableOutput(program, false);
  ShowAll({&form2.Command10, &form2.Command1[0]});
  DisableAll({&form2.HScroll1, &form2.HScroll2});
  ShowSpeedRequests(program);
  ChartRequest(program);
  form2.Label38.Visible = true;
  form2.Command11.Enabled = false;
  form2.Picture12.Visible = false;
  form2.Picture4.BringToFront();
  form2.Picture3.BringToFront();
  ShowAll({&form2.Picture4, &form2.Picture3, &form2.Picture2, &form2.Text6});
  DisableSpin(form2.Spin4);
  DisableSpin(form2.Spin5);
  DisableAll({&form2.Label6, &form2.Label8});
  if (AllGearsAuto(program)) form2.Picture1.Visible = true;
  SetFocus(form2.Text1[kGears]);
}

// ---- C: from "SPEED" or "RPM" to "CHANGE" ----

void CloseRequests(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  program.workspace.ModeWord = mode::kChange;
  form2.Picture31.Visible = true;
  form2.Label43.Caption = kPlanShown;
  HideAll({&form2.Label38, &form2.Picture30, &form2.Picture1, &form2.Picture4});
  ChartPlan(program);
  form2.f_calc.Enabled = false;
  EnableOutput(program, true);
  EnableAll({&form2.Command3, &form2.Command4, &form2.Command11, &form2.HScroll1, &form2.HScroll2,
             &form2.Label6, &form2.Label8});
  ShowAll({&form2.Command11, &form2.Picture2, &form2.Picture3, &form2.Picture12});
  form2.Picture12.BringToFront();
  form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  EnableRowSpins(program);
}

// ---- D and E: between "SPEED" and "RPM" ----

void OpenRevolutions(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  workspace.ModeWord = mode::kRpm;
  form2.Picture30.Visible = true;
  form2.Picture30.BringToFront();
  HideAll({&form2.Command1[0], &form2.Command10, &form2.Command11});
  for (int gear = 1; gear <= kGears; ++gear) {
    if (workspace.BaseNe[gear] == 0) workspace.BaseNe[gear] = ToInt16(workspace.CheckNe);
    if (workspace.RequestNe[gear] == 0) workspace.RequestNe[gear] = ToInt16(workspace.CheckNe);
    form2.Label34[gear].Caption = std::to_string(workspace.BaseNe[gear]);
    form2.Label35[gear].Caption = std::to_string(workspace.RequestNe[gear]);
  }
}

void CloseRevolutions(Program& program) {
  Form2& form2 = program.form2;
  program.workspace.ModeWord = mode::kSpeed;
  form2.Picture30.Visible = false;
  ShowAll({&form2.Command1[0], &form2.Command10, &form2.Command11});
}

// ---- Events ----

void ChangeMode(Program& program) {
  const std::string& word = program.workspace.ModeWord;
  if (word == mode::kBasing) {
    MakeFirstPlan(program);
  } else if (word == mode::kChange) {
    OpenRequests(program);
  } else if (word == mode::kSpeed || word == mode::kRpm) {
    CloseRequests(program);
  }
}

void ChangeKindOfRequest(Program& program) {
  const std::string& word = program.workspace.ModeWord;
  if (word == mode::kSpeed) {
    OpenRevolutions(program);
  } else if (word == mode::kRpm) {
    CloseRevolutions(program);
  }
}

void Command2_MouseUp(Program& program, int button) {
  if (button == kLeftButton) ChangeMode(program);
  if (button == kRightButton) ChangeKindOfRequest(program);
}

void f_mode_Click(Program& program) {
  program.form2.Command2.MouseUp(kLeftButton);
}

/// By speed the request entry is opened anew before the search.
void f_calc_Click(Program& program) {
  std::string& word = program.workspace.ModeWord;
  if (word == mode::kRpm) {
    program.form2.Command6.Click();
  } else if (word == mode::kSpeed) {
    word = mode::kChange;
    program.form2.Command2.MouseUp(kLeftButton);
    program.form2.Command6.Click();
  }
}

}  // namespace

void AttachGearPanelModes(Program& program) {
  On(program, program.form2.Command2.MouseUp, Command2_MouseUp);
  On(program, program.form2.f_mode.Click, f_mode_Click);
  On(program, program.form2.f_calc.Click, f_calc_Click);
}

}  // namespace veldrin
