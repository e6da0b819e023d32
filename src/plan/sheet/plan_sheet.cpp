#include "plan/sheet/plan_sheet.h"

#include "calc/gear_names.h"
#include "calc/plan_figures.h"
#include "runtime/text.h"

namespace veldrin {

namespace {

constexpr int kThird = 3;
constexpr int kFourth = 4;

SheetGear& GearOf(PlanSheet& sheet, int gear) {
  return sheet.gears[static_cast<std::size_t>(gear - 1)];
}

void TakeFigures(const Workspace& workspace, PlanSheet& sheet) {
  for (int gear = 1; gear <= kGears; ++gear) {
    SheetGear& of = GearOf(sheet, gear);
    of.pair = workspace.GearTable(gear, workspace.PlanIndex[gear]);
    of.request = workspace.SpeedRequest[gear];
    of.speed = workspace.SpeedNow[gear];
    of.afterNe = workspace.ShiftDropNe[gear];
    if (gear > 1) of.step = workspace.SpeedStepNow[gear - 1];
    if (!sheet.hasStored) continue;
    of.stored = workspace.SpeedBaseline[gear];
    if (gear > 1) of.storedStep = of.stored - workspace.SpeedBaseline[gear - 1];
    of.difference = of.speed - of.stored;
    of.deviation = workspace.NeDeviation[gear];
  }
}

void TakeParts(const CombinationFile& combination, PlanSheet& sheet) {
  for (int gear = 1; gear <= kGears; ++gear) {
    SheetGear& of = GearOf(sheet, gear);
    const auto found = combination.single.find({gear, of.pair});
    if (found == combination.single.end()) continue;
    of.main = found->second.main;
    of.counter = found->second.counter;
  }
  SheetGear& third = GearOf(sheet, kThird);
  SheetGear& fourth = GearOf(sheet, kFourth);
  const auto found = combination.joint.find({third.pair, fourth.pair});
  if (found == combination.joint.end()) return;
  third.main = found->second.main;
  third.counter = found->second.counterOfThird;
  fourth.main = found->second.main;
  fourth.counter = found->second.counterOfFourth;
}

void TakeNotes(const Workspace& workspace, PlanSheet& sheet) {
  sheet.excludedPair =
      workspace.M34Matrix(workspace.PlanIndex[kThird], workspace.PlanIndex[kFourth]) == kEndMark;
  for (int gear = 2; gear <= kGears; ++gear) {
    if (GearOf(sheet, gear).step <= 0) sheet.notFaster.push_back(gear);
  }
}

}  // namespace

std::vector<std::string> Notes(const PlanSheet& sheet) {
  std::vector<std::string> notes;
  if (sheet.excludedPair) {
    notes.push_back(sheet.gears[kThird - 1].pair + " and " + sheet.gears[kFourth - 1].pair +
                    " cannot be fitted together in 3rd and 4th");
  }
  for (const int gear : sheet.notFaster)
    notes.push_back(GearWord(gear) + " is not faster than " + GearWord(gear - 1));
  return notes;
}

PlanSheet SheetOf(Workspace workspace, const std::string& title, const CombinationFile* combination) {
  PlanSheet sheet;
  sheet.title = title;
  sheet.machine = workspace.MachineName;
  sheet.tyreLength = workspace.TyreLength;
  sheet.shiftNe = workspace.ShiftNe;
  sheet.referenceNe = workspace.ReferenceNe;
  sheet.checkNe = workspace.CheckNe;
  sheet.maxNe = workspace.MaxNe;
  sheet.maxSpeed = workspace.MaxSpeed;
  sheet.hasRequests = workspace.SpeedRequest[1] != 0;
  sheet.hasStored = workspace.SpeedBaseline[1] != 0;
  sheet.primary = Trim(workspace.PrimaryTable[workspace.PrimaryIndex].Text);
  sheet.final = Trim(workspace.FinalTable[workspace.FinalIndex].Text);
  for (int gear = 1; gear <= kGears; ++gear) {
    ComputeSpeed(workspace, gear);
    if (gear > 1) ComputeStep(workspace, gear);
    ComputeDeviation(workspace, gear);
    ComputeDrop(workspace, gear);
  }
  TakeFigures(workspace, sheet);
  if (combination != nullptr) TakeParts(*combination, sheet);
  TakeNotes(workspace, sheet);
  return sheet;
}

}  // namespace veldrin
