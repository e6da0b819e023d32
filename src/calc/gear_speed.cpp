#include "calc/gear_speed.h"

#include "runtime/conversion.h"

namespace veldrin {

double SpeedBeforeGear(const Workspace& workspace, int primaryRow, int finalRow) {
  const auto revolutions = static_cast<float>(workspace.ShiftNe);
  return static_cast<double>(revolutions) * static_cast<double>(workspace.TyreLength) *
         workspace.PrimaryTable[primaryRow].Ratio * workspace.FinalTable[finalRow].Ratio;
}

double GearSpeed(const Workspace& workspace, double speedBeforeGear, int gear, int gearRow) {
  const double drive = workspace.GearDriveTeeth(gear, gearRow);
  const double driven = workspace.GearDrivenTeeth(gear, gearRow);
  if (driven == 0) Divide(speedBeforeGear * drive, driven);
  return GearSpeedOf(speedBeforeGear, drive, driven);
}

double GearSpeed(const Workspace& workspace, int primaryRow, int finalRow, int gear, int gearRow) {
  return GearSpeed(workspace, SpeedBeforeGear(workspace, primaryRow, finalRow), gear, gearRow);
}

}  // namespace veldrin
