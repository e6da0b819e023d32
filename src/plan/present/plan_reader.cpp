#include "plan/present/plan_reader.h"

#include "calc/gear_names.h"
#include "calc/plan_figures.h"
#include "model/chart_room.h"
#include "model/decimal.h"
#include "model/gear_pairs.h"
#include "model/list_tables.h"
#include "plan/check/field_scanner.h"
#include "plan/check/list_remarks.h"
#include "plan/files/bad_input.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/number_format.h"
#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

namespace {

constexpr char kPlanTag[] = "FROM:";

/// Reads the lines one by one and refuses what is wrong with them.
class PlanReader {
 public:
  PlanReader(const std::string& path, const std::string& text, const Workspace& machine)
      : path_(path), scanner_(text), plan_{path, machine, ""} {}

  PlanAtHand Read() {
    Workspace& workspace = plan_.workspace;
    scanner_.RestOfLine();  // the machine's
    workspace.TyreLength = ToSingle(Decimal("the tyre length", kTyreLimits));
    workspace.ShiftNe = ToInt16(Decimal("the shift revolutions", kRevolutionLimits));
    workspace.ReferenceNe = workspace.ShiftNe;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.SpeedBaseline[gear] = ToSingle(Decimal("the speed of " + GearName(gear), kStoredSpeedLimits));
    }
    workspace.PrimaryIndex = Row("primary", workspace.PrimaryTable, workspace.PrimaryCount);
    workspace.FinalIndex = Row("final", workspace.FinalTable, FinalRowCount(workspace));
    ReadPairs();
    while (!scanner_.AtEnd()) {
      if (!plan_.remark.empty()) plan_.remark += '\n';
      plan_.remark += scanner_.RestOfLine();
    }
    Guarded([&] { WidenRevolutions(workspace); });
    RaiseTopSpeed(workspace);
    return plan_;
  }

 private:
  double Decimal(const std::string& name, const Limits& limits) {
    const int line = scanner_.Line();
    if (scanner_.AtEnd()) RefuseLine(path_, line, "the file ends before " + name);
    const std::string text = scanner_.RestOfLine();
    float value = 0;
    if (Guarded([&] { value = RepairedSingle(plan_.workspace, text); }) != 0) {
      RefuseLine(path_, line, name + ", " + Quoted(text) + ", is no number");
    }
    if (!limits.Holds(value)) {
      RefuseLine(path_, line,
                 name + ", " + text + ", is out of range, " + std::to_string(limits.lowest) + " to " +
                     std::to_string(limits.highest));
    }
    return value;
  }

  /// A row by the two numbers of its text.
  template <class Rows>
  std::int16_t Row(const char* name, const Rows& rows, int count) {
    const ScannedField drive = scanner_.Field();
    const ScannedField driven = scanner_.Field();
    if (driven.line == 0 || driven.text.empty())
      RefuseLine(path_, scanner_.Line(), std::string("the file ends in ") + name);
    const std::string text = drive.text + "-" + driven.text;
    for (int row = 1; row <= count; ++row) {
      if (Trim(rows[row].Text) == text) return static_cast<std::int16_t>(row);
    }
    RefuseLine(path_, drive.line, plan_.workspace.MachineName + " has no " + name + ' ' + Quoted(text));
  }

  void ReadPairs() {
    const int lineNumber = scanner_.Line();
    const std::string line = scanner_.RestOfLine();
    Table<std::string, 1, kGears> pairs;
    SplitPairs(line, pairs);
    for (int gear = 1; gear <= kGears; ++gear) {
      plan_.workspace.PlanIndex[gear] = Pair(lineNumber, gear, pairs[gear]);
    }
  }

  std::int16_t Pair(int line, int gear, const std::string& text) {
    const Workspace& workspace = plan_.workspace;
    for (int row = 1; row <= std::min<int>(workspace.GearRows, kGearRowLimit); ++row) {
      if (text != kNoPair && workspace.GearTable(gear, row) == text) return static_cast<std::int16_t>(row);
    }
    RefuseLine(path_, line, workspace.MachineName + " has no pair " + Quoted(text) + " in " + GearName(gear));
  }

  const std::string& path_;
  FieldScanner scanner_;
  PlanAtHand plan_;
};

}  // namespace

std::string MachineOfPlan(const std::string& path, const std::string& text) {
  const std::string line = Trim(FieldScanner(text).RestOfLine());
  const std::size_t end = line.find('.');
  const std::size_t begin = std::string(kPlanTag).size();
  if (!line.starts_with(kPlanTag) || end == std::string::npos || end == begin) {
    RefuseLine(path, 1, "this is no plan: its first line is not FROM:MACHINE.RAT");
  }
  return line.substr(begin, end - begin);
}

PlanAtHand ReadPlan(const std::string& path, const std::string& text, const Workspace& machine) {
  const std::string name = MachineOfPlan(path, text);
  if (!EqualsIgnoringCase(name, machine.MachineName)) {
    RefuseLine(path, 1, "this is a plan of " + name + ", the list is that of " + machine.MachineName);
  }
  return PlanReader(path, text, machine).Read();
}

std::string StoredSpeedWarning(const PlanAtHand& plan) {
  Workspace workspace = plan.workspace;
  for (int gear = 1; gear <= kGears; ++gear) {
    ComputeSpeed(workspace, gear);
    if (workspace.SpeedBaseline[gear] == 0) continue;
    ComputeDeviation(workspace, gear);
    if (workspace.NeDeviation[gear] == 0) continue;
    return "the stored speeds are not those of the plan's rows: " + GearName(gear) + " is stored with " +
           FormatNumber(workspace.SpeedBaseline[gear], "0.0") + " km/h and runs " +
           FormatNumber(workspace.SpeedNow[gear], "0.0");
  }
  return "";
}

}  // namespace veldrin
