// A measured point: how fast the machine ran at which revolutions in which gear.
#pragma once

#include <string>

namespace veldrin {

struct TyrePoint {
  double speed = 0;   // km/h, above 0
  double ne = 0;      // rev/min, above 0
  int gear = 0;       // 1..6
  std::string where;  // how the point is named in messages, such as "--tyre-from 61@13000:2" or "RUN.csv:3"
};

}  // namespace veldrin
