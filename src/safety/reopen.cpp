#include "safety/reopen.h"

#include "dialogs/dropped_file.h"
#include "mainwin/chart.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "mainwin/gear_panel/gear_panel_steps.h"
#include "mainwin/refresh_display.h"
#include "model/decimal.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "view/user_input.h"
#include "workspace/caller.h"
#include "workspace/captions.h"
#include "workspace/control_states.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/files/kept_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/plan_file.h"
#include "workspace/files/working_files.h"
#include "workspace/mode.h"
#include "workspace/title.h"

#include <string>

namespace veldrin {

namespace {

/// The row of a table with this text, the one with the number first; 0 where there is none.
template <class TextOf>
std::int16_t FindRow(const ChosenRow& chosen, int count, TextOf textOf) {
  if (chosen.row >= 1 && chosen.row <= count && textOf(chosen.row) == chosen.text) return chosen.row;
  for (int row = 1; row <= count; ++row) {
    if (textOf(row) == chosen.text) return static_cast<std::int16_t>(row);
  }
  return 0;
}

struct FoundRows {
  std::int16_t primary = 0;
  std::int16_t final = 0;
  PerGear<std::int16_t> pairs{};

  bool All() const {
    bool all = primary != 0 && final != 0;
    for (const std::int16_t pair : pairs) all = all && pair != 0;
    return all;
  }
};

FoundRows FindRows(const Workspace& workspace, const PlanState& kept) {
  FoundRows found;
  found.primary = FindRow(kept.primary, workspace.PrimaryCount,
                          [&](int row) { return workspace.PrimaryTable[row].Text; });
  found.final = FindRow(kept.final, workspace.FinalDriveCount * workspace.FinalDrivenCount,
                        [&](int row) { return workspace.FinalTable[row].Text; });
  for (int gear = 1; gear <= kGears; ++gear) {
    found.pairs[Place(gear)] = FindRow(kept.pairs[Place(gear)], workspace.GearRows,
                                       [&](int row) { return workspace.GearTable(gear, row); });
  }
  return found;
}

void Read(Program& program, const std::string& path) {
  Under(program, caller::kForm1, [&] {
    OpenAnyFile(program, path);
    SettleMachine(program);
  });
}

/// Whether the machine's own list is in force, from the very file where that can be had.
bool LoadMachine(Program& program, const PlanState& kept) {
  const Workspace& workspace = program.workspace;
  const auto stands = [&] {
    return LowerCase(workspace.LoadedMachine) == LowerCase(kept.machine) && workspace.LoadedList == kept.list;
  };
  if (stands()) return true;
  if (!program.machine.files.FileExists(kept.list)) return false;
  SaveHistory(program);  // that of the machine that is left
  Read(program, kept.list);
  return stands();
}

/// What the disk has of the plan. A plan that never had a file, or whose file is gone, lies over a first
/// plan.
std::optional<PlanState> LayGround(Program& program, const PlanState& kept) {
  Workspace& workspace = program.workspace;
  const bool hasFile = !kept.file.empty() && program.machine.files.FileExists(kept.file);
  if (hasFile) Read(program, kept.file);
  DropQuestion(program);
  const bool fromFile = hasFile && HasPlanOnShow(workspace) && workspace.DataFile == kept.file;
  if (!fromFile) {
    // Only an empty window makes a first plan.
    if (HasPlanOnShow(workspace)) Read(program, kept.list);
    program.form2.Command2.MouseUp(kLeftButton);
  }
  return fromFile || kept.file.empty() ? TakeState(program) : std::nullopt;
}

void LayRows(Workspace& workspace, const FoundRows& rows) {
  workspace.PrimaryIndex = rows.primary;
  workspace.FinalIndex = rows.final;
  for (int gear = 1; gear <= kGears; ++gear) workspace.PlanIndex[gear] = rows.pairs[Place(gear)];
}

void LayConditions(Workspace& workspace, const PlanState& kept) {
  workspace.TyreLength = kept.tyreLength;
  workspace.ShiftNe = kept.shiftNe;
  workspace.CheckNe = kept.checkNe;
  workspace.ReferenceNe = kept.referenceNe;
  workspace.MaxSpeed = kept.maxSpeed;
  workspace.MaxNe = kept.maxNe;
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedBaseline[gear] = kept.baseline[Place(gear)];
}

void ShowTexts(Program& program, const PlanState& kept) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  form2.Text6.Text = kept.remark;
  form2.Text2.Text = SingleText(workspace, workspace.CheckNe);
  form2.Text3.Text = SingleText(workspace, workspace.TyreLength);
  form2.Text4.Text = std::to_string(workspace.ShiftNe);
  form2.Label6.Caption = kept.primary.text;
  form2.Label8.Caption = kept.final.text;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (kept.baselineShown) Guarded([&] { ShowBaseline(program, gear); });
    form2.Label12[gear].Caption = kept.pairs[Place(gear)].text;
  }
}

void ShowBars(Program& program, const PlanState& kept) {
  program.form2.HScroll1.Value = kept.shiftNe;
  program.form2.HScroll2.Value = static_cast<int>(kept.checkNe);
}

/// The handlers of what is written stay silent: one refresh at the end shows it all, under a word that leaves
/// the dirty flag alone.
void Show(Program& program, const PlanState& kept) {
  Under(program, caller::kModule1, [&] { ShowTexts(program, kept); });
  ChartScale(program);
  Under(program, caller::kInit, [&] { ShowBars(program, kept); });
  Under(program, caller::kScroll, [&] { RefreshPlan(program); });
  TestForbiddenPair(program, kThirdGear);
}

void CountAsChanged(Program& program, const PlanState& kept) {
  Workspace& workspace = program.workspace;
  workspace.DataFile = kept.file;
  if (!kept.title.empty()) program.form2.Caption = kept.title;
  workspace.DataChanged = dirty::kYes;
  workspace.RemarkChanged = dirty::kYes;
  // A plan without a file has nothing to restore.
  if (!workspace.WorkFileStale) EnableRestore(program, true);
  MarkTitle(program);
}

void EnterRequests(Program& program, const RequestState& requests) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::size_t place = Place(gear);
    workspace.SpeedRequest[gear] = requests.speeds[place];
    workspace.ToleranceMinus[gear] = requests.minus[place];
    workspace.TolerancePlus[gear] = requests.plus[place];
    workspace.BaseNe[gear] = requests.baseNe[place];
    workspace.RequestNe[gear] = requests.requestNe[place];
  }
  form2.Command2.MouseUp(kLeftButton);
  for (int gear = 1; gear <= kGears; ++gear) {
    const bool manual = IsManual(form2, gear);
    if (manual != requests.manual[Place(gear)]) form2.Command1[gear].Click();
  }
  form2.Option1[requests.mainGear].Value = true;
  if (requests.byRevolutions) form2.Command2.MouseUp(kRightButton);
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::size_t place = Place(gear);
    // What was half typed need be no number.
    Guarded([&] { form2.Text1[gear].Text = requests.texts[place]; });
    workspace.SpeedRequest[gear] = requests.speeds[place];
  }
  ChartRequest(program);
}

}  // namespace

Reopened ReopenKept(Program& program, const PlanState& kept) {
  if (!TakesDroppedFiles(program) || !user::Activate(program.form2)) return {Reopening::Busy, {}};
  Workspace& workspace = program.workspace;
  if (!LoadMachine(program, kept)) return {Reopening::NoList, {}};
  const FoundRows rows = FindRows(workspace, kept);
  if (!rows.All()) return {Reopening::NotInList, {}};
  Reopened reopened{Reopening::Done, LayGround(program, kept)};
  LayRows(workspace, rows);
  LayConditions(workspace, kept);
  Show(program, kept);
  CountAsChanged(program, kept);
  if (kept.requests) EnterRequests(program, *kept.requests);
  return reopened;
}

}  // namespace veldrin
