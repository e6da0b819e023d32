#include "mainwin/refresh_display.h"

#include "calc/gear_speed.h"
#include "mainwin/chart.h"
#include "runtime/conversion.h"
#include "workspace/control_states.h"
#include "workspace/title.h"

namespace veldrin {

namespace {

constexpr double kDeadBand = 1.5;  // rev/min either way that count as no deviation

/// A step that rises leaves the two gears grey, but keeps the yellow that an earlier refresh gave the lower
/// one; a step that does not rise turns both yellow. Red, a forbidden pair, is never touched.
/// Kept: a yellow 1st gear has no way back to grey here.
void ColourStep(Program& program, int gear, float step) {
  Label& lower = program.form2.Label12[gear - 1];
  Label& upper = program.form2.Label12[gear];
  if (step > 0) {
    if (upper.BackColor != kRed) upper.BackColor = kLightGrey;
    if (lower.BackColor != kYellow && lower.BackColor != kRed) lower.BackColor = kLightGrey;
    return;
  }
  if (upper.BackColor != kRed) upper.BackColor = kYellow;
  if (lower.BackColor != kRed) lower.BackColor = kYellow;
  program.machine.sound.Beep();
}

void ShowStepTo(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  const float step = ToSingle(workspace.SpeedNow[gear] - workspace.SpeedNow[gear - 1]);
  workspace.SpeedStepNow[gear - 1] = step;
  ColourStep(program, gear, step);
  ShowStep(workspace, program.form2.Label40[gear - 1], step);
}

void ShowDeviation(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  Label& deviation = program.form2.Label10[gear];
  Label& difference = program.form2.Label_Dif[gear];
  const float speed = workspace.SpeedNow[gear];
  float& baseline = workspace.SpeedBaseline[gear];
  if (baseline == 0) {
    baseline = speed;
    deviation.Caption = kNoDeviation;
    difference.Caption = kNoDeviation;
    return;
  }
  const double ratio = Divide(Divide(speed, baseline) * workspace.ReferenceNe, workspace.ShiftNe);
  workspace.NeDeviation[gear] = ToSingle((1 - ratio) * workspace.CheckNe);
  if (workspace.NeDeviation[gear] > -kDeadBand && workspace.NeDeviation[gear] < kDeadBand) {
    workspace.NeDeviation[gear] = 0;
  }
  deviation.Caption = FormatSingle(workspace, workspace.NeDeviation[gear], "+###;-###;\\+-0");
  difference.Caption = FormatSingle(workspace, ToSingle(speed - baseline), "+#0.0;-#0.0;\\  +-0");
}

void ShowGear(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord != caller::kForm4Ok) {
    workspace.SpeedNow[gear] = ToSingle(
        GearSpeed(workspace, workspace.PrimaryIndex, workspace.FinalIndex, gear, workspace.PlanIndex[gear]));
  }
  ShowSpeed(workspace, program.form2.Label9[gear], workspace.SpeedNow[gear]);
  if (gear >= 2) ShowStepTo(program, gear);
  ShowDeviation(program, gear);
  workspace.SpeedNow[0] = workspace.SpeedNow[1];
  workspace.ShiftDropNe[gear] =
      ToSingle(Divide(workspace.SpeedNow[gear - 1], workspace.SpeedNow[gear]) * workspace.ShiftNe);
  program.form2.Label11[gear].Caption = FormatSingle(workspace, workspace.ShiftDropNe[gear], "#####");
}

bool ShowsNoDeviation(const Program& program) {
  for (int gear = 1; gear <= kGears; ++gear) {
    if (program.form2.Label10[gear].Caption != kNoDeviation) return false;
  }
  return true;
}

/// Moves `DataChanged` on. A loader sets "0" and runs one refresh, which leaves "1"; the next refresh is the
/// user's. A plan stepped back to its loaded speeds becomes clean again by itself.
void AdvanceDirtyFlag(Program& program) {
  std::string& changed = program.workspace.DataChanged;
  if (changed == dirty::kZero) {
    changed = dirty::kOne;
  } else if (changed == dirty::kOne) {
    changed = dirty::kYes;
    program.form2.Caption = program.form2.Caption + program.workspace.ChangedMark;
    EnableRestore(program, true);
  } else if (changed == dirty::kNo) {
    changed = dirty::kYes;
    MarkTitle(program);
    EnableRestore(program, true);
  } else if (changed == dirty::kYes) {
    if (!ShowsNoDeviation(program) || program.workspace.RemarkChanged == dirty::kYes) return;
    changed = dirty::kNo;
    UnmarkTitle(program);
    EnableRestore(program, false);
  }
}

}  // namespace

void RefreshDisplay(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  if (!workspace.MachineKey.empty()) {
    if (workspace.SpeedNow[1] != 0) form2.Picture21.surface.Clear();
    for (int gear = 1; gear <= kGears; ++gear) ShowGear(program, gear);
    ChartPlan(program);
  }
  if (workspace.CallerWord == caller::kRead2 && !ShowsNoDeviation(program)) {
    workspace.ResultWord = result::kDifferent;
  }
  if (workspace.CallerWord == caller::kForm4Ok) {
    workspace.DataChanged = dirty::kYes;
    if (!workspace.WorkFileStale) MarkTitle(program);
  }
  const bool flagStays = workspace.CallerWord == caller::kScroll ||
                         workspace.CallerWord == caller::kTakeBaseline || workspace.WorkFileStale;
  if (!flagStays) AdvanceDirtyFlag(program);
}

}  // namespace veldrin
