#include "mainwin/gear_panel/gear_panel_chart.h"

#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "runtime/fault.h"
#include "view/bind.h"
#include "workspace/control_states.h"
#include "workspace/mode.h"

namespace veldrin {

namespace {

/// A forbidden pair of 3rd and 4th gear has no combination.
void ToggleCombination(Program& program) {
  if (!ShowsForbiddenPair(program.form2)) program.form2.menu_comb.Click();
}

void Picture21_DblClick(Program& program) {
  ToggleCombination(program);
}

void Picture21_MouseUp(Program& program, int button) {
  if (button == kRightButton) ToggleCombination(program);
}

/// Any other pointer than the default tells that printing is not possible.
void Picture28_MouseUp(Program& program, int button) {
  Form2& form2 = program.form2;
  if (form2.Picture28.MousePointer != kPointerDefault) return;
  if (button == kLeftButton) form2.menu_print.Click();
  if (button == kRightButton) form2.menu_font.Click();
}

void Picture9_DblClick(Program& program) {
  program.form2.Picture9.Visible = false;
}

template <class Speeds>
bool HasSpeed(const Speeds& speeds) {
  for (int gear = 1; gear <= kGears; ++gear) {
    if (speeds[gear] != 0) return true;
  }
  return false;
}

}  // namespace

// Without any speed nothing is drawn, and a gear without one, as while its box is being typed into, leaves
// the picture unfinished: nobody has asked for a drawing here that could fail.
void RedrawChart(Program& program) {
  Guarded([&] {
    if (ShowsRequests(program)) {
      if (HasSpeed(program.workspace.SpeedRequest)) ChartRequest(program);
    } else if (HasSpeed(program.workspace.SpeedNow)) {
      ChartPlan(program);
    }
  });
}

void ShowChartOfMode(Program& program) {
  program.form2.Picture31.Visible = true;
  program.form2.Label43.Caption = ShowsRequests(program) ? kRequestsShown : kPlanShown;
  RedrawChart(program);
}

void RefreshPlan(Program& program) {
  RefreshDisplay(program);
  if (ShowsRequests(program)) RedrawChart(program);
}

void AttachGearPanelChart(Program& program) {
  Form2& form2 = program.form2;
  On(program, form2.Picture21.DblClick, Picture21_DblClick);
  On(program, form2.Picture21.MouseUp, Picture21_MouseUp);
  On(program, form2.Picture28.MouseUp, Picture28_MouseUp);
  On(program, form2.Picture9.DblClick, Picture9_DblClick);
}

}  // namespace veldrin
