#include "mainwin/result_columns.h"

#include "runtime/conversion.h"
#include "workspace/captions.h"

namespace veldrin {

void ShowSpeedNow(Program& program, int gear) {
  ShowSpeed(program.workspace, program.form2.Label9[gear], program.workspace.SpeedNow[gear]);
}

/// A step that rises leaves the two gears grey, but keeps the yellow that an earlier refresh gave the lower
/// one; a step that does not rise turns both yellow. Red, a forbidden pair, is never touched.
/// Kept: a yellow 1st gear has no way back to grey here.
void ColourStep(Program& program, int gear) {
  Label& lower = program.form2.Label12[gear - 1];
  Label& upper = program.form2.Label12[gear];
  if (program.workspace.SpeedStepNow[gear - 1] > 0) {
    if (upper.BackColor != kRed) upper.BackColor = kLightGrey;
    if (lower.BackColor != kYellow && lower.BackColor != kRed) lower.BackColor = kLightGrey;
    return;
  }
  if (upper.BackColor != kRed) upper.BackColor = kYellow;
  if (lower.BackColor != kRed) lower.BackColor = kYellow;
}

void ShowStepNow(Program& program, int gear) {
  ShowStep(program.workspace, program.form2.Label40[gear - 1], program.workspace.SpeedStepNow[gear - 1]);
}

void ShowDeviation(Program& program, int gear) {
  const Workspace& workspace = program.workspace;
  program.form2.Label10[gear].Caption =
      FormatSingle(workspace, workspace.NeDeviation[gear], "+###;-###;\\+-0");
  program.form2.Label_Dif[gear].Caption = FormatSingle(
      workspace, ToSingle(workspace.SpeedNow[gear] - workspace.SpeedBaseline[gear]), "+#0.0;-#0.0;\\  +-0");
}

void ShowNoDeviation(Program& program, int gear) {
  program.form2.Label10[gear].Caption = kNoDeviation;
  program.form2.Label_Dif[gear].Caption = kNoDeviation;
}

void ShowDrop(Program& program, int gear) {
  const Workspace& workspace = program.workspace;
  program.form2.Label11[gear].Caption = FormatSingle(workspace, workspace.ShiftDropNe[gear], "#####");
}

bool ShowsNoDeviation(const Program& program) {
  for (int gear = 1; gear <= kGears; ++gear) {
    if (program.form2.Label10[gear].Caption != kNoDeviation) return false;
  }
  return true;
}

}  // namespace veldrin
