#include "mainwin/gear_panel/gear_panel_steps.h"

#include "mainwin/combination.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "mainwin/refresh_display.h"
#include "model/list_tables.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/control_states.h"
#include "workspace/notice_words.h"

namespace veldrin {

namespace {

// ---- Primary and final ----

/// Moves a row number by 1 within 1..`count`. False at an end.
bool StepRow(std::int16_t& row, int step, int count) {
  const int stepped = row + step;
  if (stepped < 1 || stepped > count) return false;
  row = static_cast<std::int16_t>(stepped);
  return true;
}

void StepPrimary(Program& program, int step) {
  Workspace& workspace = program.workspace;
  if (!StepRow(workspace.PrimaryIndex, step, workspace.PrimaryCount)) return;
  program.form2.Label6.Caption = workspace.PrimaryTable[workspace.PrimaryIndex].Text;
}

void StepFinal(Program& program, int step) {
  Workspace& workspace = program.workspace;
  if (!StepRow(workspace.FinalIndex, step, FinalRowCount(workspace))) return;
  program.form2.Label8.Caption = workspace.FinalTable[workspace.FinalIndex].Text;
}

void Spin4_SpinDown(Program& program) {
  StepPrimary(program, -1);
}

void Spin4_SpinUp(Program& program) {
  StepPrimary(program, 1);
}

void Spin5_SpinDown(Program& program) {
  StepFinal(program, -1);
}

void Spin5_SpinUp(Program& program) {
  StepFinal(program, 1);
}

// ---- Gear pairs ----

/// The next row from the plan's with a pair, by steps of 1 or -1; 0 when there is none before the gear's end.
int NextPairRow(const Workspace& workspace, int gear, int step) {
  const int end = step > 0 ? workspace.GearRows : workspace.GearFirstRow[gear];
  for (int row = workspace.PlanIndex[gear] + step; (end - row) * step >= 0; row += step) {
    if (workspace.GearTable(gear, row) != kNoPair) return row;
  }
  return 0;
}

void StepGear(Program& program, int gear, int step) {
  Workspace& workspace = program.workspace;
  const int row = NextPairRow(workspace, gear, step);
  if (row == 0) return;
  workspace.PlanIndex[gear] = static_cast<std::int16_t>(row);
  TestForbiddenPair(program, gear);
  program.form2.Label12[gear].Caption = workspace.GearTable(gear, row);
}

void Spin6_SpinDown(Program& program, int gear) {
  StepGear(program, gear, -1);
}

void Spin6_SpinUp(Program& program, int gear) {
  StepGear(program, gear, 1);
}

// ---- Labels ----

/// Label6_Change and Label8_Change.
void Row_Change(Program& program) {
  if (program.workspace.CallerWord != caller::kModule1) RefreshPlan(program);
}

void Label12_Change(Program& program, int) {
  if (program.workspace.CallerWord == caller::kModule1) return;
  RefreshPlan(program);
  if (!ShowsParts(program.form2)) return;
  Under(program, caller::kCombination, [&] { program.form2.menu_comb.Click(); });
}

}  // namespace

void TestForbiddenPair(Program& program, int gear) {
  if (gear != kThirdGear && gear != kFourthGear) return;
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  const bool forbidden =
      workspace.M34Matrix(workspace.PlanIndex[kThirdGear], workspace.PlanIndex[kFourthGear]) == kEndMark;
  form2.Label12[kThirdGear].BackColor = forbidden ? kRed : kLightGrey;
  form2.Label12[kFourthGear].BackColor = forbidden ? kRed : kLightGrey;
  EnableOutput(program, !forbidden);
  if (!forbidden) return;
  form2.Picture9.Visible = false;
  program.machine.sound.Beep();
  Inform(program, ForbiddenPairWords(workspace));
}

void AttachGearPanelSteps(Program& program) {
  Form2& form2 = program.form2;
  On(program, form2.Spin4.SpinDown, Spin4_SpinDown);
  On(program, form2.Spin4.SpinUp, Spin4_SpinUp);
  On(program, form2.Spin5.SpinDown, Spin5_SpinDown);
  On(program, form2.Spin5.SpinUp, Spin5_SpinUp);
  OnEach(program, form2.Spin6, &SpinButton::SpinDown, Spin6_SpinDown);
  OnEach(program, form2.Spin6, &SpinButton::SpinUp, Spin6_SpinUp);
  On(program, form2.Label6.Change, Row_Change);
  On(program, form2.Label8.Change, Row_Change);
  OnEach(program, form2.Label12, &Label::Change, Label12_Change);
}

}  // namespace veldrin
