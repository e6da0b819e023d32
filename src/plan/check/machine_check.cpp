#include "plan/check/machine_check.h"

#include "calc/gear_speed.h"
#include "plan/files/machine.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

#include <algorithm>
#include <string>
#include <vector>

namespace veldrin {

namespace {

/// The rows of a gear that hold a pair.
std::vector<int> PairRows(const Workspace& machine, int gear) {
  std::vector<int> rows;
  for (int row = 1; row <= std::min<int>(machine.GearRows, kGearRowLimit); ++row) {
    if (machine.GearTable(gear, row) != kNoPair) rows.push_back(row);
  }
  return rows;
}

std::string GearName(int gear) {
  return "gear " + std::to_string(gear);
}

/// What comes of a plan that starts on a place without a pair.
std::string StartOnNoPair(const Workspace& machine, int gear) {
  const int row = machine.PlanIndex[gear];
  const int drive = machine.GearDriveTeeth(gear, row);
  const int driven = machine.GearDrivenTeeth(gear, row);
  std::string text = "the first plan has the empty place of row " + std::to_string(row) + ", \"" + kNoPair +
                     "\", and counts with its " + std::to_string(drive) + " over " + std::to_string(driven) +
                     " teeth";
  if (drive == 0 || driven == 0) text += ", which ends the program";
  return text;
}

/// The first row that breaks the order of a gear's ratios, rising or falling; 0 when none does.
int RowOutOfOrder(const Workspace& machine, int gear, const std::vector<int>& rows) {
  int direction = 0;
  for (std::size_t k = 1; k < rows.size(); ++k) {
    const auto ratio = [&](int row) {
      return Divide(machine.GearDriveTeeth(gear, row), machine.GearDrivenTeeth(gear, row));
    };
    const double before = ratio(rows[k - 1]);
    const double after = ratio(rows[k]);
    const int step = after > before ? 1 : after < before ? -1 : 0;
    if (step == 0) continue;
    if (direction == -step) return rows[k];
    direction = step;
  }
  return 0;
}

void CheckGear(const Workspace& machine, int gear, const ListPlaces& places, ListRemarks& remarks) {
  const std::vector<int> rows = PairRows(machine, gear);
  if (rows.empty()) {
    remarks.Warn(places.gearRow[1], GearName(gear) + " has no pair in any row: no search finds a plan, and " +
                                        StartOnNoPair(machine, gear));
  } else if (machine.GearTable(gear, machine.PlanIndex[gear]) == kNoPair) {
    remarks.Warn(places.gearRow[rows.front()],
                 GearName(gear) + " has its first pair in the last row: " + StartOnNoPair(machine, gear));
  }
  if (const int row = RowOutOfOrder(machine, gear, rows); row != 0) {
    remarks.Warn(places.gearRow[row], GearName(gear) + ", row " + std::to_string(row) +
                                          ": not in the order of the ratios, so a search may pass over the "
                                          "nearest pair");
  }
}

void CheckForbiddenPairs(const Workspace& machine, const ListPlaces& places, ListRemarks& remarks) {
  const std::vector<int> third = PairRows(machine, 3);
  const std::vector<int> fourth = PairRows(machine, 4);
  if (third.empty() || fourth.empty()) return;
  const bool allForbidden = std::all_of(third.begin(), third.end(), [&](int a) {
    return std::all_of(fourth.begin(), fourth.end(),
                       [&](int b) { return machine.M34Matrix(a, b) == kEndMark; });
  });
  const int a = machine.PlanIndex[3];
  const int b = machine.PlanIndex[4];
  if (allForbidden) {
    remarks.Warn(places.matrix,
                 "the matrix forbids every pair of 3rd and 4th gear, so no search finds a plan");
  } else if (machine.M34Matrix(a, b) == kEndMark) {
    remarks.Warn(places.matrix, "the first plan has rows " + std::to_string(a) + " and " + std::to_string(b) +
                                    " of 3rd and 4th gear, which the matrix forbids, and does not show it");
  }
}

/// "SHIFT_NE is 16000", and "by default" where the list does not say so.
std::string Condition(const char* key, double value, const ListPlaces& places) {
  return std::string(key) + " is " + ShortestText(value) + (places.keys.contains(key) ? "" : " by default");
}

/// Revolutions beyond the end of the chart, for which the list is to blame.
void CheckWithinChart(const char* key, double value, const Workspace& machine, const ListPlaces& places,
                      ListRemarks& remarks) {
  constexpr char kEnd[] = "MAX_NE";
  const auto own = places.keys.find(key);
  const auto end = places.keys.find(kEnd);
  const int line = own != places.keys.end() ? own->second : end != places.keys.end() ? end->second : 0;
  if (value <= machine.MaxNe || line == 0) return;
  remarks.Warn(
      line, Condition(key, value, places) + ", beyond the chart: " + Condition(kEnd, machine.MaxNe, places));
}

/// The plan of the lowest rows, with which every machine begins, on a chart whose top the list has set.
void CheckTopSpeed(const Workspace& machine, const ListPlaces& places, ListRemarks& remarks) {
  const auto top = places.keys.find("MAX_SPEED");
  const int row = machine.PlanIndex[kGears];
  if (top == places.keys.end() || machine.GearTable(kGears, row) == kNoPair) return;
  const float speed = ToSingle(GearSpeed(machine, 1, 1, kGears, row));
  if (speed <= static_cast<float>(machine.MaxSpeed)) return;
  remarks.Warn(top->second, "the first plan runs " + FormatNumber(speed, "0") +
                                " km/h, beyond the chart: MAX_SPEED is " + std::to_string(machine.MaxSpeed));
}

}  // namespace

void CheckMachine(const Workspace& machine, const ListPlaces& places, ListRemarks& remarks) {
  for (int gear = 1; gear <= kGears; ++gear) CheckGear(machine, gear, places, remarks);
  CheckForbiddenPairs(machine, places, remarks);
  CheckWithinChart("SHIFT_NE", machine.ShiftNe, machine, places, remarks);
  CheckWithinChart("CHECK_NE", machine.CheckNe, machine, places, remarks);
  CheckTopSpeed(machine, places, remarks);
}

}  // namespace veldrin
