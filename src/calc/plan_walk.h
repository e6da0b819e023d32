// The walk over all combinations of primary and final rows that both searches make, pass by pass with wider
// tolerances.
//
// A pass asks of each gear of each combination, in order, whether some row's speed comes near enough to the
// request; the first gear without such a row abandons the combination. Errors do not change from pass to
// pass, so each is computed once, the first time that a pass comes to its gear, and turned into the number
// of the first pass in which the row is near enough. A combination that needs a later pass is skipped
// without a look at its rows. Which rows are looked at when, and so which fault comes first, is what a
// plain loop over all passes would give.
#pragma once

#include "model/workspace.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace veldrin {

/// The pass of a row that no pass admits.
inline constexpr int kNoPass = 127;

/// The first pass, from 1, in which a row is near enough to its gear's request, given its speed less the
/// request in km/h; kNoPass when none is.
using FirstPass = std::function<int(int gear, float error)>;

/// How far, in km/h, a row may miss its gear's request and still pass in the widest pass.
struct Reach {
  double below;
  double above;
};

/// Told of every combination of every pass, by its final row: the search's sign of life.
using Blink = std::function<void(int finalRow)>;

class PlanWalk {
 public:
  /// The walk looks at the workspace's tables, requests and running conditions as they stand.
  /// A gear all of whose rows miss its request by more than its `reach` is not asked row by row.
  PlanWalk(const Workspace& workspace, const Table<Reach, 1, kGears>& reach, FirstPass firstPass);

  /// Makes one pass and appends its plans to `PlanList` of `found`. Raises fault 9 for a 31st plan and for
  /// `GearRows` beyond the tables, 11 or 6 for a gear pair without driven teeth that is looked at.
  void Pass(int pass, Workspace& found, const Blink& blink);

 private:
  struct Combination {
    /// Speed less request of each row, in row order, of the gears known so far.
    std::array<std::array<float, kGearRowLimit>, kGears> errors;
    int gearsKnown = 0;
  };
  /// The rows of a gear that hold a pair.
  struct GearPairs {
    std::array<int, kGearRowLimit> row;
    std::array<double, kGearRowLimit> drive;
    std::array<double, kGearRowLimit> driven;
    int count = 0;
    bool lacksTeeth = false;
    /// Lowest and highest drive over driven, where no row lacks teeth.
    double lowestRatio = 0;
    double highestRatio = 0;
  };

  GearPairs PairsOf(int gear) const;
  bool IsBeyondReach(double speedBeforeGear, int gear) const;
  int LearnGear(Combination& combination, double speedBeforeGear);
  int BestRow(const Combination& combination, int gear, int pass) const;
  void AddPlan(const Combination& combination, int primary, int final, int pass, Workspace& found) const;

  const Workspace& workspace_;
  Table<Reach, 1, kGears> reach_;
  FirstPass firstPass_;
  std::array<GearPairs, kGears> pairs_;
  std::vector<Combination> combinations_;
  /// The first pass in which the gears known so far all have a row.
  std::vector<std::int8_t> needed_;
};

}  // namespace veldrin
