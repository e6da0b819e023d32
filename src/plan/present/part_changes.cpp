#include "plan/present/part_changes.h"

#include "calc/gear_names.h"
#include "model/list_tables.h"
#include "runtime/text.h"

#include <algorithm>
#include <utility>

namespace veldrin {

namespace {

constexpr int kThird = 3;
constexpr int kFourth = 4;

}  // namespace

PartChanges::PartChanges(const Workspace& workspace, const PlanRows& present,
                         std::optional<CombinationFile> combination)
    : workspace_(workspace), present_(present), combination_(std::move(combination)) {}

int PartChanges::FinalParts(int row) const {
  const RatioRow& now = workspace_.FinalTable[present_.final];
  const RatioRow& then = workspace_.FinalTable[row];
  return (now.Drive != then.Drive) + (now.Driven != then.Driven);
}

int PartChanges::JointPartsOf(int third, int fourth) const {
  const std::string& third0 = workspace_.GearTable(kThird, present_.gear[kThird]);
  const std::string& fourth0 = workspace_.GearTable(kFourth, present_.gear[kFourth]);
  const std::string& third1 = workspace_.GearTable(kThird, third);
  const std::string& fourth1 = workspace_.GearTable(kFourth, fourth);
  const int pairs = (third0 != third1) + (fourth0 != fourth1);
  if (!combination_ || pairs == 0) return pairs;
  const auto& joint = combination_->joint;
  const auto now = joint.find({third0, fourth0});
  const auto then = joint.find({third1, fourth1});
  if (now == joint.end() || then == joint.end()) return pairs;
  return (now->second.main != then->second.main) +
         (now->second.counterOfThird != then->second.counterOfThird) +
         (now->second.counterOfFourth != then->second.counterOfFourth);
}

std::vector<PartChange> PartChanges::To(const PlanRows& rows) const {
  std::vector<PartChange> changes;
  const std::string& primary = workspace_.PrimaryTable[rows.primary].Text;
  const std::string& primary0 = workspace_.PrimaryTable[present_.primary].Text;
  if (primary != primary0) changes.push_back({kPrimaryPlace, Trim(primary), Trim(primary0), 1});
  const int sprockets = FinalParts(rows.final);
  if (sprockets > 0) {
    changes.push_back({kFinalPlace, Trim(workspace_.FinalTable[rows.final].Text),
                       Trim(workspace_.FinalTable[present_.final].Text), sprockets});
  }
  int joint = JointPartsOf(rows.gear[kThird], rows.gear[kFourth]);
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::string& pair = workspace_.GearTable(gear, rows.gear[gear]);
    const std::string& pair0 = workspace_.GearTable(gear, present_.gear[gear]);
    if (pair == pair0) continue;
    // What 3rd and 4th gear take together stands with the first of them that changes.
    const int parts = gear == kThird || gear == kFourth ? std::exchange(joint, 0) : 1;
    changes.push_back({gear, pair, pair0, parts});
  }
  return changes;
}

PartCosts PartChanges::Costs() const {
  PartCosts costs;
  for (int row = 1; row <= workspace_.PrimaryCount; ++row) {
    costs.primary[row] = workspace_.PrimaryTable[row].Text != workspace_.PrimaryTable[present_.primary].Text;
  }
  for (int row = 1; row <= FinalRowCount(workspace_); ++row) costs.final[row] = FinalParts(row);
  const int rows = std::min<int>(workspace_.GearRows, kGearRowLimit);
  for (int row = 1; row <= rows; ++row) {
    for (const int gear : {1, 2, 5, 6}) {
      costs.gear(gear, row) =
          workspace_.GearTable(gear, row) != workspace_.GearTable(gear, present_.gear[gear]);
    }
    for (int fourth = 1; fourth <= rows; ++fourth) costs.joint(row, fourth) = JointPartsOf(row, fourth);
  }
  return costs;
}

std::string ChangeText(const PartChange& change) {
  const std::string place = change.place == kPrimaryPlace ? "primary"
                            : change.place == kFinalPlace ? "final"
                                                          : GearWord(change.place);
  return place + ' ' + change.in + " for " + change.out;
}

std::string ChangeText(const std::vector<PartChange>& changes) {
  std::string text;
  for (const PartChange& change : changes) text += (text.empty() ? "" : "; ") + ChangeText(change);
  return text.empty() ? "nothing" : text;
}

int CountParts(const std::vector<PartChange>& changes) {
  int parts = 0;
  for (const PartChange& change : changes) parts += change.parts;
  return parts;
}

PlanRows RowsOf(const Workspace& workspace) {
  return {workspace.PrimaryIndex, workspace.FinalIndex, workspace.PlanIndex};
}

}  // namespace veldrin
