// Everything that is printed, drawn or written of a plan at hand, as the window shows it.
#pragma once

#include "model/workspace.h"
#include "plan/present/combination_file.h"
#include "plan/present/part_changes.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

struct SheetGear {
  std::string pair;
  float request = 0;     // km/h; 0 for none
  float stored = 0;      // km/h, as the plan file has it; 0 for none
  float storedStep = 0;  // km/h above the gear below; 0 in gear 1
  float speed = 0;       // km/h
  float step = 0;        // km/h above the gear below; 0 in gear 1
  float difference = 0;  // km/h, speed less stored speed
  float afterNe = 0;     // rev/min after changing up into the gear; the shift revolutions in gear 1
  float deviation = 0;   // rev/min at the check line, with the window's dead band
  std::string main;      // parts of the combination file; empty for none
  std::string counter;
};

struct PlanSheet {
  std::string title;  // the file's name, or the plan's number
  std::string machine;
  float tyreLength = 0;  // metres
  int shiftNe = 0;       // rev/min
  int referenceNe = 0;   // rev/min of the stored speeds
  float checkNe = 0;     // rev/min
  int maxNe = 0;         // rev/min, right end of the chart
  int maxSpeed = 0;      // km/h, top of the chart
  bool hasRequests = false;
  bool hasStored = false;
  std::string primary;
  std::string final;
  std::array<SheetGear, kGears> gears;
  std::string remark;  // its lines parted by '\n'
  // What the window shows by a colour: pairs of 3rd and 4th gear that exclude each other, and gears that are
  // not faster than the one below.
  bool excludedPair = false;
  std::vector<int> notFaster;
  std::optional<std::vector<PartChange>> changes;
};

/// The notes on a plan, a sentence each without its end.
std::vector<std::string> Notes(const PlanSheet& sheet);

/// The sheet of the plan that `workspace` holds in its indexes, with the baseline as the stored speeds; those
/// that are 0 are none, and so with the requests. Raises fault 11 (or 6) where a speed of 0 is a divisor.
PlanSheet SheetOf(Workspace workspace, const std::string& title, const CombinationFile* combination);

}  // namespace veldrin
