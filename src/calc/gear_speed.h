// The one formula of a gear's speed.
#pragma once

#include "model/workspace.h"

namespace veldrin {

/// The part of a gear's speed that all gear rows share: revolutions, tyre, primary and final ratio,
/// multiplied in this order in 64 bits. Raises fault 9 for rows outside the tables.
double SpeedBeforeGear(const Workspace& workspace, int primaryRow, int finalRow);

/// Road speed in km/h at `ShiftNe` of `gear` (1..6) with `gearRow` (1..10), in 64 bits, the order of the
/// multiplication being part of the rule; the caller narrows it. Raises fault 9 for rows outside the tables,
/// 11 for a gear pair without driven teeth (6 when its drive teeth are 0 too).
double GearSpeed(const Workspace& workspace, int primaryRow, int finalRow, int gear, int gearRow);

inline constexpr double kMetresPerMinuteToKilometresPerHour = 0.06;

/// The last steps of every gear's speed, for driven teeth that are not 0.
inline double GearSpeedOf(double speedBeforeGear, double drive, double driven) {
  return speedBeforeGear * drive / driven * kMetresPerMinuteToKilometresPerHour;
}

/// The same from the shared part, which one (primary, final) pair computes once.
double GearSpeed(const Workspace& workspace, double speedBeforeGear, int gear, int gearRow);

}  // namespace veldrin
