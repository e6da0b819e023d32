// The rows that come into question at one primary and final row, and bounds on what can be made of them.
#pragma once

#include "calc/pairs_of_gear.h"
#include "plan/best/best_plans.h"

#include <array>
#include <cstdint>

namespace veldrin {

/// A row of a gear. `pair` is its place in the gear's GearPairs.
struct RowChoice {
  int row = 0;
  int pair = 0;
  std::int64_t miss = 0;  // MissUnits
  std::int64_t cost = 0;  // parts
};

/// The rows of one gear, the most promising first.
struct GearChoices {
  std::array<RowChoice, kGearRowLimit> rows;
  int count = 0;

  const RowChoice* begin() const { return rows.data(); }
  const RowChoice* end() const { return rows.data() + count; }
};

/// The machine's pairs as the best plans need them, the same at every primary and final row.
class PairTable {
 public:
  explicit PairTable(const Workspace& workspace);

  const GearPairs& Of(int gear) const { return pairs_[gear]; }
  bool Allows(int thirdRow, int fourthRow) const {
    return workspace_.M34Matrix(thirdRow, fourthRow) != kEndMark;
  }
  double Ratio(int gear, int pair) const { return ratios_[gear][static_cast<std::size_t>(pair)]; }

 private:
  const Workspace& workspace_;
  Table<GearPairs, 1, kGears> pairs_;
  Table<std::array<double, kGearRowLimit>, 1, kGears> ratios_;
};

class RowChoices {
 public:
  /// Looks at the gears' rows at these two rows. What the query's bounds shut out is left out.
  RowChoices(const Workspace& workspace, const PairTable& pairs, const BestQuery& query, int primary,
             int final);

  /// Whether every gear has a row, 3rd and 4th such that can be fitted together.
  bool Fit() const { return fit_; }
  const GearChoices& Of(int gear) const { return gears_[gear]; }

  /// What no rows of the gears behind `gear` (0..6) beat: the largest miss, the sum, the parts. Those of the
  /// primary and final row are not among the parts.
  const Measures& Least(int gear) const { return least_[gear]; }

 private:
  void LearnGear(const Workspace& workspace, const PairTable& pairs, const BestQuery& query, int gear,
                 double speedBeforeGear);
  void BoundThirdAndFourth(const PairTable& pairs, const PartCosts& costs, Measures& least);

  Table<GearChoices, 1, kGears> gears_;
  Table<Measures, 0, kGears> least_;
  bool fit_ = true;
};

}  // namespace veldrin
