// By what combinations are ranked, in whole numbers: sums come out the same in whatever order they are made,
// and what is equal but for the last bits of a division counts as equal.
#pragma once

#include "calc/plan_rows.h"

#include <array>
#include <compare>
#include <cstdint>

namespace veldrin {

enum class Rank { Miss, Sum, Steps, Change };

inline constexpr double kMissUnits = 1e6;  // of a km/h
inline constexpr double kDropUnits = 1e3;  // of a rev/min

/// A miss in millionths of a km/h; those beyond a thousand million km/h count alike.
std::int64_t MissUnits(float error);

/// The revolutions lost by changing up from a gear of ratio `below` into one of ratio `above`, in thousandths
/// of a rev/min; `above` is not 0.
std::int64_t DropUnits(double shiftNe, double below, double above);

/// What a combination is measured by.
struct Measures {
  std::int64_t miss = 0;     // the largest, in MissUnits
  std::int64_t sum = 0;      // of all misses, in MissUnits
  std::int64_t steps = 0;    // squared differences of neighbouring drops, in squared DropUnits
  std::int64_t changed = 0;  // parts

  friend bool operator==(const Measures&, const Measures&) = default;
};

// The same in km/h and in (rev/min) squared.
inline double MissOf(const Measures& measures) {
  return static_cast<double>(measures.miss) / kMissUnits;
}
inline double SumOf(const Measures& measures) {
  return static_cast<double>(measures.sum) / kMissUnits;
}
inline double StepsOf(const Measures& measures) {
  return static_cast<double>(measures.steps) / (kDropUnits * kDropUnits);
}

/// The measures in the order in which `rank` compares them; the smaller the better.
std::array<std::int64_t, 3> RankValues(Rank rank, const Measures& measures);

/// The rows in walking order: primary, final, gears 1 to 6.
std::array<std::int16_t, 8> WalkingOrder(const PlanRows& rows);

}  // namespace veldrin
