// What the dialogs keep beside the workspace, each as long as its window stands.
#pragma once

#include "model/workspace.h"

#include <cstdint>
#include <string>

namespace veldrin {

/// The plan dialog's plan on show.
struct PlanDialogState {
  std::int16_t ShownPlan = 0;  // index in `PlanList`
  std::int16_t ShownPrimary = 0;
  std::int16_t ShownFinal = 0;
  Table<std::int16_t, 1, kGears> ShownRow;
  Table<float, 0, kGears> ShownSpeed;  // km/h; element 0 repeats element 1
  Table<float, 1, kGears - 1> ShownStep;
  Table<float, 1, kGears> ShownDrop;  // rev/min
};

inline constexpr int kCompareSlots = 3;

/// One plan of the compare window.
struct CompareSlotRecord {
  std::string Filename;
  std::string Title;
  std::string Primary;
  std::string Final;
  float Tyre = 0;                 // metres
  std::int16_t ShiftNe = 0;       // rev/min
  Table<float, 0, kGears> Speed;  // km/h; element 0 repeats element 1
  Table<std::int16_t, 1, kGears> DropNe;
  Table<std::string, 1, kGears> Plan;
  Table<float, 1, kGears - 1> Step;
};

struct CompareState {
  std::int16_t CompareCount = 0;  // plans held; 0 while the window is closed
  std::int16_t CompareIndex = 0;  // the plan shown, from 0
  Table<CompareSlotRecord, 0, kCompareSlots - 1> CompareSlot;
};

struct ChooserState {
  /// Path of the list that was picked for a plan and stands open until the change of machine is confirmed.
  std::string waitingList;
};

struct SettingsDialogState {
  std::string ValidationResult;
};

}  // namespace veldrin
