#include "mainwin/refresh_display.h"

#include "calc/plan_figures.h"
#include "mainwin/chart.h"
#include "mainwin/dirty_flag.h"
#include "mainwin/result_columns.h"

namespace veldrin {

namespace {

/// Every figure is shown before the next is computed, so that a fault finds the columns written up to it. The
/// plan dialog has set the speeds itself.
void RefreshGear(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord != caller::kForm4Ok) ComputeSpeed(workspace, gear);
  ShowSpeedNow(program, gear);
  if (gear >= 2) {
    ComputeStep(workspace, gear);
    ColourStep(program, gear);
    if (workspace.SpeedStepNow[gear - 1] <= 0) program.machine.sound.Beep();
    ShowStepNow(program, gear);
  }
  if (ComputeDeviation(workspace, gear)) {
    ShowDeviation(program, gear);
  } else {
    ShowNoDeviation(program, gear);
  }
  ComputeDrop(workspace, gear);
  ShowDrop(program, gear);
}

}  // namespace

void RefreshDisplay(Program& program) {
  Workspace& workspace = program.workspace;
  if (!workspace.MachineKey.empty()) {
    // Should a gear have no speed, no chart of the plan before stays behind.
    if (workspace.SpeedNow[1] != 0) program.form2.Picture21.surface.Clear();
    for (int gear = 1; gear <= kGears; ++gear) RefreshGear(program, gear);
    ChartPlan(program);
  }
  if (workspace.CallerWord == caller::kRead2 && !ShowsNoDeviation(program)) {
    workspace.ResultWord = result::kDifferent;
  }
  MoveDirtyFlag(program);
}

}  // namespace veldrin
