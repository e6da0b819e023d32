// The walk over all combinations of primary and final rows that both searches make, pass by pass with wider
// tolerances.
//
// A pass asks of each gear of each combination, in order, whether some row's speed comes near enough to the
// request; the first gear without such a row abandons the combination. Errors do not change from pass to
// pass, so a gear is looked at once, and what is kept is the first pass that admits one of its rows. A
// combination that needs a later pass is skipped without a look at its rows. Where a row may raise a fault,
// its gear is looked at when a plain loop over all passes would first come to it, so that the same fault
// comes first.
#pragma once

#include "calc/pairs_of_gear.h"
#include "calc/row_lanes.h"
#include "calc/search_bounds.h"
#include "model/list_tables.h"
#include "model/workspace.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace veldrin {

/// Told of every combination of every pass, by its final row: the search's sign of life.
using Blink = std::function<void(int finalRow)>;

class PlanWalk {
 public:
  /// The walk looks at the workspace's tables, requests and running conditions as they stand.
  PlanWalk(const Workspace& workspace, const PassRules& rules);

  /// Makes one pass and appends its plans to `PlanList` of `found`. Raises fault 9 for a 31st plan and for
  /// `GearRows` beyond the tables, 11 or 6 for a gear pair without driven teeth that is looked at.
  template <class Told>
  void Pass(int pass, Workspace& found, const Told& blink) {
    const int finals = FinalRowCount(workspace_);
    std::size_t at = 0;
    for (int primary = 1; primary <= workspace_.PrimaryCount; ++primary) {
      for (int final = 1; final <= finals; ++final, ++at) {
        blink(final);
        if (combinations_[at].needed <= pass) Visit(combinations_[at], primary, final, pass, found);
      }
    }
  }

 private:
  struct Combination {
    /// The first pass in which the gears known so far all have a row.
    std::int8_t needed = 1;
    std::int8_t gearsKnown = 0;
  };

  void Visit(Combination& combination, int primary, int final, int pass, Workspace& found);
  int FirstPass(int gear, double speedBeforeGear) const;
  int FirstPassByRows(int gear, double speedBeforeGear) const;
  int BestRow(int gear, double speedBeforeGear, int pass) const;
  void AddPlan(int primary, int final, int pass, Workspace& found) const;

  const Workspace& workspace_;
  PassRules rules_;
  Table<GearPairs, 1, kGears> pairs_;
  Table<RowLanes, 1, kGears> lanes_;
  /// The largest part of a speed, shared by its rows, with which no gear can fault.
  double faultless_ = 1e300;
  std::vector<Combination> combinations_;
};

}  // namespace veldrin
