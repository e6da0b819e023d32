// Small machines made in memory for the tests of the searches.
#pragma once

#include "model/workspace.h"

#include <string>

namespace veldrin {

/// Puts a pair into a gear's table.
inline void SetPair(Workspace& workspace, int gear, int row, const std::string& text, int drive, int driven) {
  workspace.GearTable(gear, row) = text;
  workspace.GearDriveTeeth(gear, row) = static_cast<std::int16_t>(drive);
  workspace.GearDrivenTeeth(gear, row) = static_cast<std::int16_t>(driven);
}

/// Makes every row of a gear a place without a pair.
inline void ClearPairs(Workspace& workspace, int gear) {
  for (int row = 1; row <= kGearRowLimit; ++row) SetPair(workspace, gear, row, kNoPair, kEndMark, kEndMark);
}

inline void SetRatio(RatioRow& row, int drive, int driven) {
  row.Drive = static_cast<std::int16_t>(drive);
  row.Driven = static_cast<std::int16_t>(driven);
  row.Text = RatioText(drive, driven);
  row.Ratio = driven == 0 ? row.Ratio : static_cast<double>(drive) / driven;
}

/// A machine of one primary, one final row and no gear row at which a gear of drive over driven teeth runs
/// 100 times their ratio in km/h: 5000 rev/min, 1 m, primary 1-3.
inline Workspace HundredKmhMachine() {
  Workspace workspace;
  workspace.MachineName = "HUNDRED";
  workspace.MachineKey = "hundred";
  workspace.ShiftNe = 5000;
  workspace.TyreLength = 1;
  workspace.MinPlan = 1;
  workspace.PrimaryCount = 1;
  workspace.FinalDriveCount = 1;
  workspace.FinalDrivenCount = 1;
  SetRatio(workspace.PrimaryTable[1], 1, 3);
  SetRatio(workspace.FinalTable[1], 1, 1);
  for (int gear = 1; gear <= kGears; ++gear) {
    workspace.ToleranceMinus[gear] = 1;
    workspace.TolerancePlus[gear] = 1;
  }
  return workspace;
}

}  // namespace veldrin
