// Machines whose speeds can be worked out in the head, for the searches.
#pragma once

#include "calc/plan_search.h"
#include "tests/calc/search_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace veldrin {

using Plans = std::vector<std::string>;

inline void Silent(int /*finalRow*/) {}

/// A machine whose gears all run at 100 km/h with their one row, and are asked to.
inline Workspace OneRowAt100() {
  Workspace workspace = HundredKmhMachine();
  workspace.GearRows = 1;
  for (int gear = 1; gear <= kGears; ++gear) {
    ClearPairs(workspace, gear);
    SetPair(workspace, gear, 1, "A", 1, 1);
    workspace.SpeedRequest[gear] = 100;
  }
  return workspace;
}

/// Gives a gear rows of these speeds in km/h.
inline void SetSpeeds(Workspace& workspace, int gear, const std::vector<int>& speeds) {
  ClearPairs(workspace, gear);
  int row = 1;
  for (const int speed : speeds) {
    SetPair(workspace, gear, row, std::to_string(row), speed, 100);
    workspace.GearRows = std::max<std::int16_t>(workspace.GearRows, static_cast<std::int16_t>(row));
    ++row;
  }
}

/// Gives the machine final rows at which the gears of OneRowAt100 run at these speeds in km/h.
inline void SetFinals(Workspace& workspace, const std::vector<int>& speeds) {
  workspace.FinalDriveCount = 1;
  workspace.FinalDrivenCount = static_cast<std::int16_t>(speeds.size());
  int row = 0;
  for (const int speed : speeds) SetRatio(workspace.FinalTable[++row], speed, 100);
}

inline void Request(Workspace& workspace, int speed) {
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedRequest[gear] = static_cast<float>(speed);
}

inline Table<bool, 1, kGears> Manual(const std::vector<int>& gears) {
  Table<bool, 1, kGears> manual;
  for (const int gear : gears) manual[gear] = true;
  return manual;
}

/// The plans up to PlanCount.
inline Plans Found(const Workspace& workspace) {
  Plans plans;
  for (int k = 1; k <= workspace.PlanCount; ++k) plans.push_back(workspace.PlanList[k]);
  return plans;
}

/// How many passes a search makes, told by its sign of life at final row 1 of primary row 1.
struct PassCounter {
  int passes = 0;
  Blink Count() {
    return [this](int finalRow) { passes += finalRow == 1; };
  }
};

}  // namespace veldrin
