#include "mainwin/gear_panel/gear_panel_requests.h"

#include "mainwin/chart.h"
#include "mainwin/search.h"
#include "model/decimal.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/caller.h"
#include "workspace/control_states.h"

#include <string>

namespace veldrin {

namespace {

/// Where the shared counter stands after a loop over the gears.
constexpr int kCounterAfterGears = kGears + 1;
constexpr double kNeStep = 50;  // rev/min
constexpr char kNoTolerance[] = "--";

// ---- Boxes of the request speeds ----

double WholeNumberOf(const Program& program, const std::string& text) {
  return RoundHalfToEven(SystemNumber(program.workspace, text));
}

std::string NumberText(const Program& program, double number) {
  return ShortestText(number, DecimalSeparator(program.workspace));
}

/// The steps between the boxes, up to the first empty one; those behind it stay as they are.
void ShowRequestSteps(Program& program) {
  Form2& form2 = program.form2;
  for (int step = 1; step < kGears; ++step) {
    const std::string& upper = form2.Text1[step + 1].Text;
    const std::string& lower = form2.Text1[step].Text;
    if (upper.empty() || lower.empty()) return;
    form2.Label25[step].Caption =
        NumberText(program, WholeNumberOf(program, upper) - WholeNumberOf(program, lower));
  }
}

void Text1_Change(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  if (workspace.CallerWord == caller::kCopyRequests) return;
  TextBox& box = program.form2.Text1[gear];
  // Kept: of all characters only the one at the shared counter's place is looked at, so letters in shorter
  // texts are not filtered and end the program in the conversion.
  if (Mid(box.Text.get(), kCounterAfterGears, 1) > "9") {
    box.Text = "";
    return;
  }
  if (!box.Text.get().empty()) workspace.SpeedRequest[gear] = ToSingle(WholeNumberOf(program, box.Text));
  ShowRequestSteps(program);
}

void Text1_DblClick(Program& program, int gear) {
  if (program.workspace.ModeWord == mode::kSpeed) program.form2.Text1[gear].Text = "";
}

void HoldAtFloor(Program& program, TextBox& box) {
  const std::string& text = box.Text;
  if (text.empty() || SystemNumber(program.workspace, text) < kLowestRequest)
    box.Text = std::to_string(kLowestRequest);
}

void StepBox(Program& program, TextBox& box, int step) {
  box.Text = NumberText(program, SystemNumber(program.workspace, box.Text) + step);
  program.machine.windows.Repaint(box);
}

/// The column is entered from 6th gear downward. The floor comes before the step, so a step down from it
/// stands until the box is left.
void Text1_KeyDown(Program& program, int gear, int key) {
  Form2& form2 = program.form2;
  const bool step = key == kKeyLeft || key == kKeyRight;
  const bool downward = key == kKeyEnter || key == kKeyDown;
  if (!step && !downward && key != kKeyUp) return;
  TextBox& box = form2.Text1[gear];
  HoldAtFloor(program, box);
  const bool bySpeed = program.workspace.ModeWord == mode::kSpeed;
  const bool requesting = bySpeed || program.workspace.ModeWord == mode::kRpm;
  if (bySpeed && downward && gear > 1) SetFocus(form2.Text1[gear - 1]);
  if (bySpeed && key == kKeyUp && gear < kGears) SetFocus(form2.Text1[gear + 1]);
  if (requesting && step) StepBox(program, box, key == kKeyLeft ? -1 : 1);
  ChartRequest(program);
}

/// A reader that hides the panel takes the focus away as well; that is no leaving of the box.
void Text1_LostFocus(Program& program, int gear) {
  if (program.workspace.CallerWord == caller::kModule1) return;
  HoldAtFloor(program, program.form2.Text1[gear]);
  if (program.workspace.ModeWord == mode::kSpeed) ChartRequest(program);
}

void Command6_KeyDown(Program& program, int key) {
  if (key == kKeyUp) SetFocus(program.form2.Text1[1]);
}

void TakeBaselineAsRequest(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  workspace.SpeedRequest[gear] = ToSingle(RoundHalfToEven(workspace.SpeedBaseline[gear]));
  program.form2.Text1[gear].Text = SingleText(workspace, workspace.SpeedRequest[gear]);
}

/// The baseline becomes the request.
void Command10_Click(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Under(program, caller::kCopyRequests, [&] {
    for (int gear = 1; gear <= kGears; ++gear) {
      TakeBaselineAsRequest(program, gear);
      workspace.RequestNe[gear] = workspace.BaseNe[gear];
      form2.Label35[gear].Caption = form2.Label34[gear].Caption;
    }
    ShowRequestSteps(program);
  });
  ChartScale(program);
  ChartRequest(program);
}

// ---- Modes and tolerances of the gears ----

void SetManual(Program& program, int gear) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  form2.Command1[gear].Caption = kManual;
  EnableAll({&form2.Label14[gear], &form2.Label15[gear]});
  form2.Label14[gear].Caption = std::to_string(workspace.ToleranceMinus[gear]);
  form2.Label15[gear].Caption = std::to_string(workspace.TolerancePlus[gear]);
  EnableSpin(form2.Spin1[gear]);
  EnableSpin(form2.Spin3[gear]);
}

/// The tolerances stay as they are, out of sight.
void SetAuto(Program& program, int gear) {
  Form2& form2 = program.form2;
  form2.Command1[gear].Caption = kAuto;
  DisableAll({&form2.Label14[gear], &form2.Label15[gear]});
  form2.Label14[gear].Caption = kNoTolerance;
  form2.Label15[gear].Caption = kNoTolerance;
  DisableSpin(form2.Spin1[gear]);
  DisableSpin(form2.Spin3[gear]);
}

/// Element 0 is "FULL AUTO". A main gear can be chosen only while all gears are automatic.
void Command1_Click(Program& program, int gear) {
  Form2& form2 = program.form2;
  if (gear == 0) {
    for (int each = 1; each <= kGears; ++each) SetAuto(program, each);
    form2.Picture1.Visible = true;
  } else if (IsManual(form2, gear)) {
    SetAuto(program, gear);
    if (AllGearsAuto(program)) form2.Picture1.Visible = true;
  } else {
    SetManual(program, gear);
    form2.Picture1.Visible = false;
  }
}

void Option1_Click(Program& program, int index) {
  program.form2.Option1[index].Value = true;
}

/// Moves a tolerance by 1 within its ends and shows it.
void StepTolerance(std::int16_t& tolerance, Label& label, int step) {
  const int stepped = tolerance + step;
  if (!kToleranceLimits.Holds(stepped)) return;
  tolerance = static_cast<std::int16_t>(stepped);
  label.Caption = std::to_string(tolerance);
}

void Spin1_SpinDown(Program& program, int gear) {
  StepTolerance(program.workspace.ToleranceMinus[gear], program.form2.Label14[gear], 1);
}

void Spin1_SpinUp(Program& program, int gear) {
  StepTolerance(program.workspace.ToleranceMinus[gear], program.form2.Label14[gear], -1);
}

void Spin3_SpinDown(Program& program, int gear) {
  StepTolerance(program.workspace.TolerancePlus[gear], program.form2.Label15[gear], -1);
}

void Spin3_SpinUp(Program& program, int gear) {
  StepTolerance(program.workspace.TolerancePlus[gear], program.form2.Label15[gear], 1);
}

// ---- Requests by revolutions ----

void SetBothNe(Program& program, int gear, double revolutions) {
  Workspace& workspace = program.workspace;
  workspace.BaseNe[gear] = ToInt16(revolutions);
  workspace.RequestNe[gear] = workspace.BaseNe[gear];
  program.form2.Label34[gear].Caption = std::to_string(workspace.BaseNe[gear]);
  program.form2.Label35[gear].Caption = std::to_string(workspace.RequestNe[gear]);
}

void SpinButton1_SpinDown(Program& program, int gear) {
  SetBothNe(program, gear, program.workspace.BaseNe[gear] - kNeStep);
}

void SpinButton1_SpinUp(Program& program, int gear) {
  SetBothNe(program, gear, program.workspace.BaseNe[gear] + kNeStep);
}

void Label34_DblClick(Program& program, int gear) {
  SetBothNe(program, gear, program.workspace.CheckNe);
}

/// The engine that turned `BaseNe` at the baseline speed is to turn `RequestNe`; the request speed follows.
/// Kept: nothing holds `RequestNe` above 0, and at 0 the division ends the program.
void StepRequestNe(Program& program, int gear, double step) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  workspace.RequestNe[gear] = ToInt16(workspace.RequestNe[gear] + step);
  form2.Label35[gear].Caption = std::to_string(workspace.RequestNe[gear]);
  const double speed = Divide(workspace.BaseNe[gear] * static_cast<double>(workspace.SpeedBaseline[gear]),
                              workspace.RequestNe[gear]);
  workspace.SpeedRequest[gear] = ToSingle(RoundHalfToEven(speed));
  form2.Text1[gear].Text = SingleText(workspace, workspace.SpeedRequest[gear]);
  ChartRequest(program);
}

void SpinButton2_SpinDown(Program& program, int gear) {
  StepRequestNe(program, gear, -kNeStep);
}

void SpinButton2_SpinUp(Program& program, int gear) {
  StepRequestNe(program, gear, kNeStep);
}

}  // namespace

void CopyBaselineToRequests(Program& program) {
  Under(program, caller::kCopyRequests, [&] {
    for (int gear = 1; gear <= kGears; ++gear) TakeBaselineAsRequest(program, gear);
    ShowRequestSteps(program);
  });
}

void FillRequestBoxes(Program& program) {
  const Workspace& workspace = program.workspace;
  Under(program, caller::kCopyRequests, [&] {
    for (int gear = 1; gear <= kGears; ++gear) {
      program.form2.Text1[gear].Text = SingleText(workspace, workspace.SpeedRequest[gear]);
    }
    ShowRequestSteps(program);
  });
}

void AttachGearPanelRequests(Program& program) {
  Form2& form2 = program.form2;
  OnEach(program, form2.Text1, &TextBox::Change, Text1_Change);
  OnEach(program, form2.Text1, &TextBox::DblClick, Text1_DblClick);
  OnEach(program, form2.Text1, &TextBox::KeyDown, Text1_KeyDown);
  OnEach(program, form2.Text1, &TextBox::LostFocus, Text1_LostFocus);
  On(program, form2.Command6.KeyDown, Command6_KeyDown);
  On(program, form2.Command10.Click, Command10_Click);
  OnEach(program, form2.Command1, &Button::Click, Command1_Click);
  OnEach(program, form2.Option1, &OptionButton::Click, Option1_Click);
  OnEach(program, form2.Spin1, &SpinButton::SpinDown, Spin1_SpinDown);
  OnEach(program, form2.Spin1, &SpinButton::SpinUp, Spin1_SpinUp);
  OnEach(program, form2.Spin3, &SpinButton::SpinDown, Spin3_SpinDown);
  OnEach(program, form2.Spin3, &SpinButton::SpinUp, Spin3_SpinUp);
  OnEach(program, form2.SpinButton1, &SpinButton::SpinDown, SpinButton1_SpinDown);
  OnEach(program, form2.SpinButton1, &SpinButton::SpinUp, SpinButton1_SpinUp);
  OnEach(program, form2.Label34, &Label::DblClick, Label34_DblClick);
  OnEach(program, form2.SpinButton2, &SpinButton::SpinDown, SpinButton2_SpinDown);
  OnEach(program, form2.SpinButton2, &SpinButton::SpinUp, SpinButton2_SpinUp);
}

}  // namespace veldrin
