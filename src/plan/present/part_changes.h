// Which parts have to be changed to come from the plan that is built in to another: counted as the workshop
// counts.
//
// Sprockets count one by one, gear pairs as pairs. The parts of 3rd and 4th gear are those of the combination
// file where it names them, each part once, also one of the main shaft that serves both; else they are pairs
// as well.
#pragma once

#include "calc/plan_rows.h"
#include "plan/best/part_costs.h"
#include "plan/present/combination_file.h"

#include <optional>
#include <string>
#include <vector>

namespace veldrin {

/// Where a part changes, beside the gears 1 to 6.
inline constexpr int kPrimaryPlace = -1;
inline constexpr int kFinalPlace = 0;

struct PartChange {
  int place = 0;   // kPrimaryPlace, kFinalPlace, or the gear
  std::string in;  // texts of rows or pairs
  std::string out;
  int parts = 0;
};

class PartChanges {
 public:
  /// From the rows `present` on the machine of `workspace`, which has to outlive this.
  PartChanges(const Workspace& workspace, const PlanRows& present,
              std::optional<CombinationFile> combination);

  /// What changes, from the primary row to 6th gear; nothing for the same plan.
  std::vector<PartChange> To(const PlanRows& rows) const;
  /// The number of parts of every row.
  PartCosts Costs() const;

 private:
  int FinalParts(int row) const;
  int JointPartsOf(int third, int fourth) const;

  const Workspace& workspace_;
  PlanRows present_;
  std::optional<CombinationFile> combination_;
};

/// "final 16-37 for 17-39".
std::string ChangeText(const PartChange& change);

/// "final 16-37 for 17-39; 3rd 21.25 for 20.24", or "nothing".
std::string ChangeText(const std::vector<PartChange>& changes);

/// The number of parts of all of them.
int CountParts(const std::vector<PartChange>& changes);

/// The rows of the plan in a workspace.
PlanRows RowsOf(const Workspace& workspace);

}  // namespace veldrin
