// In which pass of a search a row is near enough to its gear's request.
#pragma once

#include <algorithm>

namespace veldrin {

/// The pass of a row that no pass admits.
inline constexpr int kNoPass = 127;

/// The bounds of a gear: in pass 1 an error, speed less request in km/h, lies in lower..upper, both included.
/// From pass to pass the lower bound sinks by 1, `sinks` times, and the upper one grows by 1, `grows` times.
struct PassRule {
  double lower = -1;
  double upper = 1;
  int sinks = 0;
  int grows = 0;

  /// The first pass, from 1, that admits the error; kNoPass when none does.
  int FirstPass(double error) const {
    return std::max(1 + Widenings(lower - error, sinks), 1 + Widenings(error - upper, grows));
  }

 private:
  /// How often a bound has to move by 1 to reach what lies `beyond` it; more than enough beyond `most`.
  static int Widenings(double beyond, int most) {
    if (beyond <= 0) return 0;
    if (!(beyond <= most)) return kNoPass - 1;
    const int whole = static_cast<int>(beyond);
    return whole < beyond ? whole + 1 : whole;
  }
};

}  // namespace veldrin
