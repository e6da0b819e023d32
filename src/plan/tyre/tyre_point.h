// A measured point: how fast the machine ran at which revolutions in which gear.
#pragma once

#include "model/limits.h"

#include <string>

namespace veldrin {

inline constexpr Limits kMeasuredSpeedLimits{1, 1000};  // km/h
inline constexpr Limits kMeasuredNeLimits{500, 24000};  // rev/min

struct TyrePoint {
  double speed = 0;   // km/h, above 0
  double ne = 0;      // rev/min, above 0
  int gear = 0;       // 1..6
  std::string where;  // how the point is named in messages, such as "--tyre-from 61@13000:2" or "RUN.csv:3"
};

}  // namespace veldrin
