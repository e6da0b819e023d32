// All combinations of a machine, one after the other, as a plain loop without a thought for speed: what units
// that look for the best of them are held against.
#pragma once

#include "calc/plan_rows.h"
#include "tests/calc/plain_search.h"

#include <array>
#include <utility>
#include <vector>

namespace veldrin::plain {

/// Speed less request of a gear's row in km/h, narrowed after the subtraction. The row has driven teeth.
inline float ErrorOf(const Workspace& w, int p, int f, int gear, int row) {
  return static_cast<float>(plain::GearSpeed(w, p, f, gear, row) - static_cast<double>(w.SpeedRequest[gear]));
}

inline bool HoldsPair(const Workspace& w, int gear, int row) {
  return w.GearTable(gear, row) != "99" && w.GearDrivenTeeth(gear, row) != 0;
}

/// A combination and what it misses in each gear, in km/h.
struct Combination {
  PlanRows rows;
  Table<float, 1, kGears> error;
};

/// Tells of every combination whose gears all hold a pair, in walking order, also of those whose 3rd and 4th
/// exclude each other.
template <class Told>
void ForEachCombination(const Workspace& w, const Told& told) {
  const int count = std::min<int>(w.GearRows, kGearRowLimit);
  const int finals = w.FinalDriveCount * w.FinalDrivenCount;
  for (int p = 1; p <= w.PrimaryCount; ++p) {
    for (int f = 1; f <= finals; ++f) {
      std::array<std::vector<std::pair<int, float>>, kGears> rows;
      std::size_t combinations = 1;
      for (int gear = 1; gear <= kGears; ++gear) {
        auto& of = rows[static_cast<std::size_t>(gear - 1)];
        for (int row = 1; row <= count; ++row) {
          if (HoldsPair(w, gear, row)) of.emplace_back(row, ErrorOf(w, p, f, gear, row));
        }
        combinations *= of.size();
      }
      for (std::size_t number = 0; number < combinations; ++number) {
        Combination combination;
        combination.rows.primary = static_cast<std::int16_t>(p);
        combination.rows.final = static_cast<std::int16_t>(f);
        std::size_t rest = number;
        for (int gear = kGears; gear >= 1; --gear) {
          const auto& of = rows[static_cast<std::size_t>(gear - 1)];
          combination.rows.gear[gear] = static_cast<std::int16_t>(of[rest % of.size()].first);
          combination.error[gear] = of[rest % of.size()].second;
          rest /= of.size();
        }
        told(combination);
      }
    }
  }
}

inline bool CanBeFitted(const Workspace& w, const PlanRows& plan) {
  return w.M34Matrix(plan.gear[3], plan.gear[4]) != 99;
}

}  // namespace veldrin::plain
