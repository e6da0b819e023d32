// The two plan searches as plain loops, written along the rules and without a thought for speed: what the
// real ones must equal in every slot, count and fault, and what the bench measures them against.
#pragma once

#include "model/workspace.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <string>

namespace veldrin::plain {

using Told = std::function<void(int finalRow)>;

inline double GearSpeed(const Workspace& w, int p, int f, int gear, int row) {
  double speed = static_cast<double>(static_cast<float>(w.ShiftNe));
  speed = speed * static_cast<double>(w.TyreLength);
  speed = speed * w.PrimaryTable[p].Ratio;
  speed = speed * w.FinalTable[f].Ratio;
  speed = speed * static_cast<double>(w.GearDriveTeeth(gear, row));
  const auto driven = static_cast<double>(w.GearDrivenTeeth(gear, row));
  if (driven == 0) Raise(speed == 0 ? kFaultOverflow : kFaultDivisionByZero);
  speed = speed / driven;
  return speed * 0.06;
}

/// The candidates of one gear: rows that passed its test, by their absolute errors.
struct Candidates {
  Table<float, 1, kGearRowLimit> error;
  int count = 0;

  void Add(float absolute, int row, std::int16_t& bestRow) {
    ++count;
    error[count] = absolute;
    if (count == 1 || error[count] < error[count - 1]) bestRow = static_cast<std::int16_t>(row);
  }
};

inline void AddPlan(Workspace& w, int p, int f, const Table<std::int16_t, 1, kGearRowLimit>& bestRow) {
  ++w.PlanCount;
  std::string plan = std::to_string(p) + "," + std::to_string(f);
  for (int gear = 1; gear <= kGears; ++gear) plan += "," + std::to_string(bestRow[gear]);
  w.PlanList[w.PlanCount] = plan;
}

/// One pass over all primary and final rows. `passes` tests a row's signed distance from the request, in 64
/// bits.
template <class Passes>
void Pass(Workspace& w, const Told& told, const Passes& passes) {
  Table<std::int16_t, 1, kGearRowLimit> bestRow;
  const int finals = w.FinalDrivenCount * w.FinalDriveCount;
  for (int p = 1; p <= w.PrimaryCount; ++p) {
    for (int f = 1; f <= finals; ++f) {
      told(f);
      bool abandoned = false;
      for (int gear = 1; gear <= kGears && !abandoned; ++gear) {
        Candidates candidates;
        for (int row = 1; row <= w.GearRows; ++row) {
          if (w.GearTable(gear, row) == "99") continue;
          const double distance =
              plain::GearSpeed(w, p, f, gear, row) - static_cast<double>(w.SpeedRequest[gear]);
          if (passes(gear, distance)) {
            candidates.Add(ToSingle(std::fabs(distance)), row, bestRow[gear]);
          }
        }
        abandoned = candidates.count == 0;
      }
      if (abandoned) continue;
      if (w.M34Matrix(bestRow[3], bestRow[4]) == 99) continue;
      AddPlan(w, p, f, bestRow);
    }
  }
}

inline void RemoveDuplicates(Workspace& w) {
  int removed = 0;
  for (int i = 1; i <= w.PlanCount - 1; ++i) {
    for (int j = i + 1; j <= w.PlanCount; ++j) {
      if (w.PlanList[i] == w.PlanList[j]) {
        ++removed;
        w.PlanList[j] = "";
      }
    }
  }
  if (removed == 0) return;
  const int limit = w.PlanCount;
  for (int i = 1; i <= limit; ++i) {
    if (!w.PlanList[i].empty()) continue;
    if (i == w.PlanCount) {
      --w.PlanCount;
      break;
    }
    for (int k = i; k <= w.PlanCount - 1; ++k) w.PlanList[k] = w.PlanList[k + 1];
    --w.PlanCount;
  }
}

/// True when at least `MinPlan` plans were found. A fault of the rules passes through.
inline bool SearchAuto(Workspace& w, int mainGear, const Told& told) {
  w.PlanCount = 0;
  std::int16_t tolerance = 1;
  while (true) {
    Pass(w, told, [&](int gear, double distance) {
      const float error = ToSingle(std::fabs(distance));
      const int limit = gear == mainGear ? 1 : tolerance;
      return error <= static_cast<float>(limit);
    });
    RemoveDuplicates(w);
    if (w.PlanCount >= w.MinPlan) return true;
    ++tolerance;
    if (tolerance >= 21) return false;
  }
}

/// True when a pass found plans.
inline bool SearchMixed(Workspace& w, const Table<bool, 1, kGears>& manual, const Told& told) {
  struct Bounds {
    std::int16_t lower = 0;
    std::int16_t upper = 0;
  };
  w.PlanCount = 0;
  Table<Bounds, 1, kGears> fixed;
  for (int gear = 1; gear <= kGears; ++gear) {
    fixed[gear].lower = static_cast<std::int16_t>(-w.ToleranceMinus[gear]);
    fixed[gear].upper = w.TolerancePlus[gear];
  }
  Table<Bounds, 1, kGears> work = fixed;
  while (true) {
    Pass(w, told, [&](int gear, double distance) {
      const float signedError = ToSingle(distance);
      const Bounds& bounds = manual[gear] ? fixed[gear] : work[gear];
      return signedError >= static_cast<float>(bounds.lower) &&
             signedError <= static_cast<float>(bounds.upper);
    });
    if (w.PlanCount != 0) return true;
    for (int gear = 1; gear <= kGears; ++gear) {
      --work[gear].lower;
      work[gear].upper = static_cast<std::int16_t>(w.TolerancePlus[gear] + 1);
    }
    for (int gear = 1; gear <= kGears; ++gear) {
      if (std::abs(work[gear].lower - fixed[gear].lower) > 20) w.ResultWord = "OVER";
      if (std::abs(work[gear].upper - fixed[gear].upper) > 20) w.ResultWord = "OVER";
    }
    if (w.ResultWord == "OVER") return false;
  }
}

}  // namespace veldrin::plain
