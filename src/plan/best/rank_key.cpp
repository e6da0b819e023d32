#include "plan/best/rank_key.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

std::int64_t MissUnits(float error) {
  constexpr double kMost = 1e9;  // km/h
  return std::llround(std::min<double>(std::fabs(error), kMost) * kMissUnits);
}

std::int64_t DropUnits(double shiftNe, double below, double above) {
  constexpr double kMost = 5e8;  // units; four squared differences stay within 64 bits
  const double drop = shiftNe * (1 - below / above);
  return std::llround(std::clamp(drop * kDropUnits, -kMost, kMost));
}

std::array<std::int64_t, 3> RankValues(Rank rank, const Measures& measures) {
  switch (rank) {
    case Rank::Miss:
      return {measures.miss, measures.sum, 0};
    case Rank::Sum:
      return {measures.sum, measures.miss, 0};
    case Rank::Steps:
      return {measures.steps, measures.miss, measures.sum};
    case Rank::Change:
      return {measures.changed, measures.miss, measures.sum};
  }
  return {};
}

std::array<std::int16_t, 8> WalkingOrder(const PlanRows& rows) {
  std::array<std::int16_t, 8> order{rows.primary, rows.final};
  for (int gear = 1; gear <= kGears; ++gear) order[static_cast<std::size_t>(gear + 1)] = rows.gear[gear];
  return order;
}

}  // namespace veldrin
