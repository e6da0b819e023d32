#include "plan/best/step_bounds.h"

#include <algorithm>
#include <limits>

namespace veldrin {

namespace {

/// Large, and a step more still within 64 bits.
constexpr std::int64_t kNone = std::numeric_limits<std::int64_t>::max() / 2;

}  // namespace

DropTable::DropTable(const PairTable& pairs, double shiftNe) {
  for (int gear = 2; gear <= kGears; ++gear) {
    for (int below = 0; below < pairs.Of(gear - 1).count; ++below) {
      for (int pair = 0; pair < pairs.Of(gear).count; ++pair) {
        drops_[gear][static_cast<std::size_t>(below)][static_cast<std::size_t>(pair)] =
            DropUnits(shiftNe, pairs.Ratio(gear - 1, below), pairs.Ratio(gear, pair));
      }
    }
  }
}

StepBounds::StepBounds(const DropTable& drops, const PairTable& pairs, const RowChoices& choices) {
  for (int gear = kGears; gear >= 2; --gear) {
    for (const RowChoice& below : choices.Of(gear - 1)) {
      for (const RowChoice& own : choices.Of(gear)) {
        std::int64_t& least =
            least_[gear][static_cast<std::size_t>(below.pair)][static_cast<std::size_t>(own.pair)];
        least = gear == kGears ? 0 : kNone;
        if (gear == 4 && !pairs.Allows(below.row, own.row)) {
          least = kNone;
          continue;
        }
        if (gear == kGears) continue;
        for (const RowChoice& next : choices.Of(gear + 1)) {
          const std::int64_t behind = Least(gear + 1, own.pair, next.pair);
          if (behind == kNone) continue;
          least = std::min(least, behind + drops.Step(gear + 1, below.pair, own.pair, next.pair));
        }
      }
    }
  }
}

}  // namespace veldrin
