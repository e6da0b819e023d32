// How even the drops of revolutions can become behind two gears that are chosen, for all rows at once.
#pragma once

#include "plan/best/row_choices.h"

namespace veldrin {

/// The drops of a machine's gears, which do not depend on primary and final row.
class DropTable {
 public:
  DropTable(const PairTable& pairs, double shiftNe);

  /// Of changing up into `gear` (2..6) with `pair`, from the gear below with `pairBelow`, in DropUnits.
  std::int64_t Of(int gear, int pairBelow, int pair) const {
    return drops_[gear][static_cast<std::size_t>(pairBelow)][static_cast<std::size_t>(pair)];
  }

  /// The squared difference of the drops into `gear` (3..6) and into the gear below.
  std::int64_t Step(int gear, int pairTwoBelow, int pairBelow, int pair) const {
    const std::int64_t difference = Of(gear, pairBelow, pair) - Of(gear - 1, pairTwoBelow, pairBelow);
    return difference * difference;
  }

 private:
  Table<std::array<std::array<std::int64_t, kGearRowLimit>, kGearRowLimit>, 2, kGears> drops_;
};

/// The smallest sum of steps behind two neighbouring gears, of the rows in question at one primary and final
/// row.
class StepBounds {
 public:
  StepBounds(const DropTable& drops, const PairTable& pairs, const RowChoices& choices);

  /// The smallest sum of the steps into the gears above `gear` (2..6), with these pairs of the gear and of
  /// that below. More than any sum where 3rd and 4th gear have none that can be fitted together.
  std::int64_t Least(int gear, int pairBelow, int pair) const {
    return least_[gear][static_cast<std::size_t>(pairBelow)][static_cast<std::size_t>(pair)];
  }

 private:
  Table<std::array<std::array<std::int64_t, kGearRowLimit>, kGearRowLimit>, 2, kGears> least_;
};

}  // namespace veldrin
