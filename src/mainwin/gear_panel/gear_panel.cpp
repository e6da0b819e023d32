#include "mainwin/gear_panel/gear_panel.h"

#include "calc/gear_speed.h"
#include "mainwin/gear_panel/gear_panel_boxes.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "mainwin/gear_panel/gear_panel_lists.h"
#include "mainwin/gear_panel/gear_panel_modes.h"
#include "mainwin/gear_panel/gear_panel_requests.h"
#include "mainwin/gear_panel/gear_panel_steps.h"
#include "mainwin/refresh_display.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/files/plan_file.h"

#include <string>

namespace veldrin {

namespace {

// ---- Baseline ----

/// The current plan becomes the baseline. A plan with changes keeps its mark through the remark's word,
/// though it does not deviate from the baseline any more.
void Command11_Click(Program& program) {
  Workspace& workspace = program.workspace;
  program.form2.Picture15.Visible = true;
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedBaseline[gear] = workspace.SpeedNow[gear];
  for (int gear = 1; gear <= kGears; ++gear) ShowBaseline(program, gear);
  if (workspace.DataChanged == dirty::kYes) workspace.RemarkChanged = dirty::kYes;
  workspace.ReferenceNe = workspace.ShiftNe;
  Under(program, caller::kTakeBaseline, [&] { RefreshPlan(program); });
}

// ---- Compare, save, load ----

void Command4_MouseUp(Program& program, int button) {
  if (button != kLeftButton) return;
  program.form2.Hide();
  program.form5.Load().Show();
}

void f_comp_Click(Program& program) {
  program.form2.Command4.MouseUp(kLeftButton);
}

/// A save that the user starts is followed by nothing: what an answer of long ago wanted to follow is void.
void Command5_Click(Program& program) {
  if (!SavesForAnswer(program)) program.workspace.PendingAction = pending::kNone;
  program.hooks.OpenSaveChooser();
}

void menu_save_Click(Program& program) {
  if (program.workspace.ModeWord != mode::kBasing) program.form2.Command5.Click();
}

/// Command3_Click and menu_data_load_Click.
void OpenDataChooser(Program& program) {
  program.hooks.OpenDataChooser();
}

void menu_list_load_Click(Program& program) {
  program.hooks.OpenListChooser();
}

void menu_data_ref_Click(Program& program) {
  program.hooks.OpenReferenceChooser();
}

void menu_qr_Click(Program& program) {
  program.hooks.OpenQuickRatioChooser();
}

/// Without a plan of this machine in the working file there is nothing to restore: nothing is said, and
/// changes stay changes. With them goes the question that is asked about them.
void Restore(Program& program) {
  Workspace& workspace = program.workspace;
  const std::string dataChanged = workspace.DataChanged;
  const std::string remarkChanged = workspace.RemarkChanged;
  bool restored = false;
  if (Guarded([&] { restored = RestorePlan(program); }) == 0) {
    if (restored) DropQuestion(program);
    return;
  }
  // The reader's word stands where a line was refused.
  StayUnder(program, caller::kUser);
  workspace.DataChanged = dataChanged;
  workspace.RemarkChanged = remarkChanged;
}

}  // namespace

void AttachGearPanel(Program& program) {
  Form2& form2 = program.form2;
  AttachGearPanelModes(program);
  AttachGearPanelRequests(program);
  AttachGearPanelSteps(program);
  AttachGearPanelLists(program);
  AttachGearPanelBoxes(program);
  AttachGearPanelChart(program);
  AttachDecisionPanel(program);
  On(program, form2.Command11.Click, Command11_Click);
  On(program, form2.Command7.Click, Restore);
  On(program, form2.f_rest.Click, Restore);
  On(program, form2.Command4.MouseUp, Command4_MouseUp);
  On(program, form2.f_comp.Click, f_comp_Click);
  On(program, form2.Command5.Click, Command5_Click);
  On(program, form2.menu_save.Click, menu_save_Click);
  On(program, form2.Command3.Click, OpenDataChooser);
  On(program, form2.menu_data_load.Click, OpenDataChooser);
  On(program, form2.menu_list_load.Click, menu_list_load_Click);
  On(program, form2.menu_data_ref.Click, menu_data_ref_Click);
  On(program, form2.menu_qr.Click, menu_qr_Click);
}

}  // namespace veldrin
