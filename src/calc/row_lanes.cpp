#include "calc/row_lanes.h"

#include "calc/gear_speed.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

RowLanes::RowLanes(const GearPairs& pairs, const PassRule& rule, double request) {
  constexpr double kSurelySingle = 1e30;  // km/h, and half of what a lane holds
  constexpr double kMostSlack = 0.1;      // km/h
  // The factor, the speed and their product are each rounded to 32 bits, the narrowed error of the rule as
  // well.
  constexpr double kLastPlaces = 4e-7;
  const double farthest = std::max(rule.sinks - rule.lower, rule.upper + rule.grows);
  const double slack = kLastPlaces * (std::fabs(request) + farthest + 64);
  if (pairs.count == 0 || pairs.lacksTeeth || rule.sinks < rule.grows || slack > kMostSlack) return;
  double largest = 0;
  for (std::size_t k = 0; k < kLaneBlocks * kLanes; ++k) {
    // Places behind the last row repeat the first.
    const std::size_t row = k < static_cast<std::size_t>(pairs.count) ? k : 0;
    const double factor = GearSpeedOf(1, pairs.drive[row], pairs.driven[row]);
    factors_[k / kLanes][k % kLanes] = static_cast<float>(factor);
    largest = std::max(largest, std::fabs(factor));
  }
  slack_ = static_cast<float>(slack);
  widensAlike_ = rule.sinks == rule.grows;
  middle_ = static_cast<float>(request + (rule.lower + rule.upper) / 2);
  half_ = static_cast<float>((rule.upper - rule.lower) / 2);
  mostOver_ = static_cast<float>(rule.grows + slack);
  mostBeyond_ = static_cast<float>(rule.sinks + slack);
  most_ = kSurelySingle / std::max(1.0, largest);
}

}  // namespace veldrin
