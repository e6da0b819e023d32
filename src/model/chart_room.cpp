#include "model/chart_room.h"

#include "runtime/conversion.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr int kNeAboveShift = 1000;  // rev/min

}  // namespace

bool WidenRevolutions(Workspace& workspace) {
  if (workspace.ShiftNe <= workspace.MaxNe) return false;
  workspace.MaxNe = ToInt16(workspace.ShiftNe + kNeAboveShift);
  return true;
}

bool RaiseTopSpeed(Workspace& workspace) {
  const double fastest = workspace.SpeedBaseline[kGears];
  if (fastest <= workspace.MaxSpeed) return false;
  const double tens = std::floor(fastest / 10) * 10 + 20;
  workspace.MaxSpeed = ToInt16(std::min<double>(tens, kMaxSpeedLimits.highest));
  return true;
}

}  // namespace veldrin
