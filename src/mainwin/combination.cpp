#include "mainwin/combination.h"

#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "view/bind.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

constexpr int kLargestFontSize = 11;   // points
constexpr double kJointPartRoom = 90;  // points times characters

const std::string& PlanPair(const Workspace& workspace, int gear) {
  return workspace.GearTable(gear, workspace.PlanIndex[gear]);
}

/// A joint part stands in white between the rows of 3rd and 4th gear, which no rule parts there.
void SetForm(Form2& form2, bool separate) {
  form2.Line9.X2 = separate ? 2625.0F : 1330.0F;
  form2.Label32[kFourthGear].Visible = separate;
  form2.Label32[kThirdGear].Top = separate ? 1800.0F : 1575.0F;
  form2.Label32[kThirdGear].ForeColor = separate ? Rgb(0, 255, 255) : kWhite;
}

/// The record of one gear, behind its first field. A gear outside 1 to 6 faults when its fields are read.
void TakeRecord(Program& program, TextReader& reader, int gear) {
  const std::string pair = reader.Field();
  const std::string main = reader.Field();
  const std::string count = reader.Field();
  if (pair != PlanPair(program.workspace, gear)) return;
  program.form2.Label32[gear].Caption = main;
  program.form2.Label33[gear].Caption = count;
}

/// The record of 3rd and 4th gear, behind its first field.
/// Kept: a joint part without a name cannot be sized and ends the command behind its caption.
void TakeJointRecord(Program& program, TextReader& reader) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  const std::string pairOfThird = reader.Field();
  reader.Int16Field();
  const std::string pairOfFourth = reader.Field();
  const std::string main = reader.Field();
  const std::string countOfThird = reader.Field();
  const std::string countOfFourth = reader.Field();
  if (pairOfThird != PlanPair(workspace, kThirdGear)) return;
  if (pairOfFourth != PlanPair(workspace, kFourthGear)) return;
  form2.Label32[kThirdGear].Caption = main;
  form2.Label32[kThirdGear].FontSize = static_cast<float>(JointPartFontSize(main));
  form2.Label33[kThirdGear].Caption = countOfThird;
  form2.Label33[kFourthGear].Caption = countOfFourth;
}

/// Later records replace what earlier ones gave. The cell of 3rd gear has large letters again before the
/// first one, but only where there is a file. Blank lines behind the last record are the file's end.
/// Kept: a cell without a record keeps the caption it had, and a blank line between records ends the command.
void TakeRecords(Program& program, TextReader& reader, bool separate) {
  if (separate) program.form2.Label32[kThirdGear].FontSize = kLargestFontSize;
  while (!reader.OnlyBlankLinesLeft()) {
    const int gear = reader.Int16Field();
    if (gear == kThirdGear && !separate) {
      TakeJointRecord(program, reader);
    } else {
      TakeRecord(program, reader, gear);
    }
  }
}

/// Kept: a fault on the way leaves the file open, so that every later opening fails until the program ends,
/// also that of another machine's file, since all have the same number.
void FillParts(Program& program, bool separate) {
  const Workspace& workspace = program.workspace;
  const PathRules rules = program.machine.files.Rules();
  program.files.OpenInput(Handle::Combination,
                          JoinPath(rules, workspace.ListPath, workspace.MachineName + ".CMB"));
  TakeRecords(program, program.files.Reader(Handle::Combination), separate);
  program.files.Close(Handle::Combination);
  program.form2.Picture9.BringToFront();
  program.form2.Picture9.Visible = true;
}

/// Kept: without a file, or with a bad one, nothing is told, and the panel stays as it is.
void menu_comb_Click(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  if (workspace.ModeWord != mode::kChange) return;
  const bool separate = HasSeparateParts(workspace);
  SetForm(form2, separate);
  if (ShowsParts(form2) && workspace.CallerWord != caller::kCombination) {
    form2.Picture9.Visible = false;
    return;
  }
  for (int gear = 1; gear <= kGears; ++gear) form2.Label31[gear].Caption = PlanPair(workspace, gear);
  Guarded([&] { FillParts(program, separate); });
}

}  // namespace

bool HasSeparateParts(const Workspace& workspace) {
  return ContainsIgnoringCase(workspace.Separate34, workspace.MachineKey);
}

int JointPartFontSize(const std::string& part) {
  const int size = static_cast<int>(std::floor(Divide(kJointPartRoom, Length(part)))) + 1;
  return std::min(size, kLargestFontSize);
}

bool ShowsParts(const Form2& form2) {
  return form2.Picture9.Visible;
}

void AttachCombination(Program& program) {
  On(program, program.form2.menu_comb.Click, menu_comb_Click);
}

}  // namespace veldrin
