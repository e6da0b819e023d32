#include "calc/plan_figures.h"

#include "calc/gear_speed.h"
#include "runtime/conversion.h"

namespace veldrin {

namespace {

constexpr double kDeadBand = 1.5;  // rev/min either way that count as no deviation

}  // namespace

void ComputeSpeed(Workspace& workspace, int gear) {
  workspace.SpeedNow[gear] = ToSingle(
      GearSpeed(workspace, workspace.PrimaryIndex, workspace.FinalIndex, gear, workspace.PlanIndex[gear]));
}

void ComputeStep(Workspace& workspace, int gear) {
  workspace.SpeedStepNow[gear - 1] = ToSingle(workspace.SpeedNow[gear] - workspace.SpeedNow[gear - 1]);
}

bool ComputeDeviation(Workspace& workspace, int gear) {
  const float speed = workspace.SpeedNow[gear];
  float& baseline = workspace.SpeedBaseline[gear];
  if (baseline == 0) {
    baseline = speed;
    return false;
  }
  const double ratio = Divide(Divide(speed, baseline) * workspace.ReferenceNe, workspace.ShiftNe);
  workspace.NeDeviation[gear] = ToSingle((1 - ratio) * workspace.CheckNe);
  if (workspace.NeDeviation[gear] > -kDeadBand && workspace.NeDeviation[gear] < kDeadBand) {
    workspace.NeDeviation[gear] = 0;
  }
  return true;
}

void ComputeDrop(Workspace& workspace, int gear) {
  workspace.SpeedNow[0] = workspace.SpeedNow[1];
  workspace.ShiftDropNe[gear] =
      ToSingle(Divide(workspace.SpeedNow[gear - 1], workspace.SpeedNow[gear]) * workspace.ShiftNe);
}

}  // namespace veldrin
