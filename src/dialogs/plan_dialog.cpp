#include "dialogs/plan_dialog.h"

#include "calc/gear_speed.h"
#include "calc/plan_rows.h"
#include "calc/plan_search.h"
#include "dialogs/other_captions.h"
#include "mainwin/chart.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "mainwin/refresh_display.h"
#include "mainwin/search.h"
#include "runtime/conversion.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/captions.h"
#include "workspace/control_states.h"

#include <string>

namespace veldrin {

namespace {

constexpr float kOuterWidth = 7140;  // twips
constexpr float kOuterHeight = 6540;

// ---- Showing a plan ----

/// Raises the faults of a plan text that is none; what stands before the fault is taken.
void TakeApart(const Workspace& workspace, PlanDialogState& dialog) {
  PlanRows plan{dialog.ShownPrimary, dialog.ShownFinal, dialog.ShownRow};
  const int fault =
      Guarded([&] { ReadListText(workspace.PlanList[dialog.ShownPlan], DecimalSeparator(workspace), plan); });
  dialog.ShownPrimary = plan.primary;
  dialog.ShownFinal = plan.final;
  dialog.ShownRow = plan.gear;
  if (fault != 0) Raise(fault);
}

void ShowRows(Program& program) {
  const Workspace& workspace = program.workspace;
  const PlanDialogState& dialog = program.planDialog;
  Form4& form4 = *program.form4;
  form4.Label6.Caption = std::to_string(dialog.ShownPlan) + "/" + std::to_string(workspace.PlanCount);
  form4.Label1.Caption = workspace.PrimaryTable[dialog.ShownPrimary].Text;
  form4.Label2.Caption = workspace.FinalTable[dialog.ShownFinal].Text;
}

void ShowGear(Program& program, int gear) {
  const Workspace& workspace = program.workspace;
  PlanDialogState& dialog = program.planDialog;
  Form4& form4 = *program.form4;
  dialog.ShownSpeed[gear] =
      ToSingle(GearSpeed(workspace, dialog.ShownPrimary, dialog.ShownFinal, gear, dialog.ShownRow[gear]));
  form4.Label11[gear].Caption = SingleText(workspace, workspace.SpeedRequest[gear]);
  ShowSpeed(workspace, form4.Label24[gear], dialog.ShownSpeed[gear]);
  if (gear >= 2) {
    dialog.ShownStep[gear - 1] = dialog.ShownSpeed[gear] - dialog.ShownSpeed[gear - 1];
    ShowStep(workspace, form4.Label39[gear - 1], dialog.ShownStep[gear - 1]);
  }
  form4.Label12[gear].Caption = workspace.GearTable(gear, dialog.ShownRow[gear]);
  dialog.ShownSpeed[0] = dialog.ShownSpeed[1];
  dialog.ShownDrop[gear] =
      ToSingle(Divide(dialog.ShownSpeed[gear - 1], dialog.ShownSpeed[gear]) * workspace.ShiftNe);
}

/// The requests stand where the large chart has the baseline, at the shift revolutions like the plan.
void DrawRays(Program& program) {
  const Workspace& workspace = program.workspace;
  Surface& surface = program.form4->Picture21.surface;
  const auto ray = [&](int style, double speed, Colour colour) {
    surface.drawStyle = style;
    DrawRay(surface, workspace.MaxNe, speed, workspace.ShiftNe, colour);
  };
  for (int gear = 1; gear <= kGears; ++gear) {
    ray(kPenSolid, program.planDialog.ShownSpeed[gear], workspace.GearColour[gear]);
    ray(kPenDotted, workspace.SpeedRequest[gear], workspace.GearColour[gear]);
  }
}

void DrawChart(Program& program) {
  const Workspace& workspace = program.workspace;
  const PlanDialogState& dialog = program.planDialog;
  Surface& surface = program.form4->Picture21.surface;
  surface.Clear();
  DrawRays(program);
  DrawMarkLine(surface, workspace.ShiftNe, workspace.MaxSpeed, kPenDashDot, kWhite);
  DrawMarkLine(surface, workspace.CheckNe, workspace.MaxSpeed, kPenDashDotDot, kLightGrey);
  surface.drawStyle = kPenSolid;
  const auto speed = [&](int gear) { return static_cast<double>(dialog.ShownSpeed[gear]); };
  const auto drop = [&](int gear) { return static_cast<double>(dialog.ShownDrop[gear]); };
  const SawTooth tooth{static_cast<double>(workspace.ShiftNe), static_cast<double>(workspace.MaxNe), speed,
                       drop};
  DrawSawTooth(surface, tooth, kWhite);
}

/// Raises the faults of a plan text that is none, and those of speeds and requests that cannot be drawn.
void ShowPlan(Program& program) {
  TakeApart(program.workspace, program.planDialog);
  ShowRows(program);
  for (int gear = 1; gear <= kGears; ++gear) ShowGear(program, gear);
  DrawChart(program);
}

// ---- Opening ----

void SetScale(Program& program) {
  const Workspace& workspace = program.workspace;
  Form4& form4 = *program.form4;
  const float thousandNe = TwipsPerThousandNe(workspace);
  const float twentyKmh = TwipsPerTwentyKmh(workspace);
  PlaceTicks(form4, thousandNe, twentyKmh);
  form4.Picture21.surface.SetScale(ChartUnits(workspace));
  PlaceNumerals(form4, thousandNe, twentyKmh);
}

void Form4_Load(Program& program) {
  const Workspace& workspace = program.workspace;
  Form4& form4 = *program.form4;
  program.planDialog = {};
  TakeJapaneseCaptions(workspace, form4);
  SetScale(program);
  for (int gear = 1; gear <= kGears; ++gear) {
    ShowGearColour(workspace, gear, {&form4.Label17, &form4.Label24});
  }
  if (workspace.PlanCount == 1) form4.Spin1.Enabled = false;
  form4.Centre(kOuterWidth, kOuterHeight);
  program.planDialog.ShownPlan = 1;
  form4.Label8.Caption = SingleText(workspace, workspace.TyreLength);
  form4.Label10.Caption = std::to_string(workspace.ShiftNe);
  // A quick-ratio or reference search cannot be cancelled.
  form4.Command2.Visible = workspace.ModeWord != mode::kReferenceInForce;
  ShowPlan(program);
}

// ---- Paging: the one control of the program that wraps ----

void Spin1_SpinDown(Program& program) {
  std::int16_t& shown = program.planDialog.ShownPlan;
  shown = shown > 1 ? static_cast<std::int16_t>(shown - 1) : program.workspace.PlanCount;
  ShowPlan(program);
}

void Spin1_SpinUp(Program& program) {
  std::int16_t& shown = program.planDialog.ShownPlan;
  shown = shown < program.workspace.PlanCount ? static_cast<std::int16_t>(shown + 1) : std::int16_t{1};
  ShowPlan(program);
}

// ---- The two answers ----

void TakePlan(Program& program) {
  Workspace& workspace = program.workspace;
  const PlanDialogState& dialog = program.planDialog;
  workspace.PrimaryIndex = dialog.ShownPrimary;
  workspace.FinalIndex = dialog.ShownFinal;
  for (int gear = 1; gear <= kGears; ++gear) {
    workspace.PlanIndex[gear] = dialog.ShownRow[gear];
    workspace.SpeedNow[gear] = dialog.ShownSpeed[gear];
  }
}

/// The combination panel still lists the parts of the plan before. A quick-ratio file that came before any
/// plan has left the bars, their titles, the remark's and the legend hidden.
void ShowPlanPanels(Form2& form2) {
  HideAll({&form2.Picture1, &form2.Picture4, &form2.Picture9, &form2.Label23});
  ShowAll({&form2.Picture2, &form2.Picture3, &form2.Picture12});
  form2.Picture12.BringToFront();
  ShowAll({&form2.Picture15, &form2.Label13, &form2.Picture29, &form2.HScroll1, &form2.HScroll2,
           &form2.Picture31});
}

/// No search yields a forbidden pair of 3rd and 4th gear.
void ForgetForbiddenPair(Form2& form2) {
  for (const int gear : {3, 4}) {
    if (form2.Label12[gear].BackColor == kRed) form2.Label12[gear].BackColor = kLightGrey;
  }
}

/// The chosen rows and pairs on the main window, without a refresh.
void ShowChosenRows(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  EnableAll({&form2.Label6, &form2.Label8, &form2.HScroll1, &form2.HScroll2, &form2.Command11});
  form2.Label6.Caption = workspace.PrimaryTable[workspace.PrimaryIndex].Text;
  form2.Label8.Caption = workspace.FinalTable[workspace.FinalIndex].Text;
  form2.Label43.Caption = kPlanShown;
  EnableRowSpins(program);
  for (int gear = 1; gear <= kGears; ++gear) {
    form2.Label12[gear].Caption = workspace.GearTable(gear, workspace.PlanIndex[gear]);
  }
  ForgetForbiddenPair(form2);
  form2.Command11.Visible = true;
  form2.f_rest.Enabled = true;
}

/// Kept: the arrows keep their colour.
void SetGearToAuto(Program& program, int gear) {
  Form2& form2 = program.form2;
  form2.Command1[gear].Caption = kAuto;
  DisableAll({&form2.Label14[gear], &form2.Label15[gear]});
  form2.Label14[gear].Caption = "--";
  form2.Label15[gear].Caption = "--";
  DisableAll({&form2.Spin1[gear], &form2.Spin3[gear]});
  program.workspace.ToleranceMinus[gear] = 1;
  program.workspace.TolerancePlus[gear] = 1;
}

void Command1_Click(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  TakePlan(program);
  ShowPlanPanels(form2);
  Under(program, caller::kModule1, [&] { ShowChosenRows(program); });
  Under(program, caller::kForm4Ok, [&] { RefreshDisplay(program); });
  form2.Show();
  workspace.ResultWord = result::kNone;
  if (workspace.ModeWord != mode::kReferenceInForce && !workspace.WorkFileStale)
    form2.Command7.Enabled = true;
  workspace.ModeWord = mode::kChange;
  form2.Label38.Visible = false;
  form2.f_calc.Enabled = false;
  EnableOutput(program, true);
  for (int gear = 1; gear <= kGears; ++gear) {
    ShowBaseline(program, gear);
    SetGearToAuto(program, gear);
  }
  form2.Picture28.Enabled = true;
  program.form4->UnloadWindow();
}

/// Kept: after an entry by revolutions the word is "SPEED" all the same, and what that entry hid stays
/// hidden.
void Command2_Click(Program& program) {
  Form2& form2 = program.form2;
  program.workspace.ModeWord = mode::kSpeed;
  form2.f_calc.Enabled = true;
  EnableOutput(program, false);
  if (AllGearsAuto(program)) form2.Picture1.Visible = true;
  program.workspace.ResultWord = result::kNone;
  program.form4->UnloadWindow();
}

/// A quick-ratio or reference file was not followed by a plan of its own: the one before it stands, with
/// speeds at the file's tyre length and revolutions.
void KeepPlanAtNewConditions(Program& program) {
  Under(program, caller::kScroll, [&] { RefreshDisplay(program); });
}

/// By either button or by closing the window.
/// Kept: a search that succeeded has emptied `ResultWord` already, so closing does not bring back `Picture1`.
void Form4_Unload(Program& program) {
  Form2& form2 = program.form2;
  if (program.workspace.ModeWord == mode::kReferenceInForce) KeepPlanAtNewConditions(program);
  ShowChartOfMode(program);
  if (program.workspace.ResultWord == result::kFullAuto) form2.Picture1.Visible = true;
  form2.Picture2.Visible = true;
  form2.Picture3.Visible = true;
  form2.Picture4.Visible = true;
  form2.Label23.Visible = false;
  form2.Show();
}

}  // namespace

void AttachPlanDialog(Program& program) {
  program.form4.attach = [&program](Form4& form4) {
    On(program, form4.Load, Form4_Load);
    On(program, form4.Unload, Form4_Unload);
    On(program, form4.Spin1.SpinDown, Spin1_SpinDown);
    On(program, form4.Spin1.SpinUp, Spin1_SpinUp);
    On(program, form4.Command1.Click, Command1_Click);
    On(program, form4.Command2.Click, Command2_Click);
  };
}

}  // namespace veldrin
