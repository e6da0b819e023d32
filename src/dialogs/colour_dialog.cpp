#include "dialogs/colour_dialog.h"

#include "mainwin/gear_panel/gear_panel_chart.h"
#include "view/bind.h"
#include "workspace/control_states.h"
#include "workspace/settings.h"

#include <string>

namespace veldrin {

namespace {

constexpr int kPickedRow = 10;  // what the lower row's subscripts have more than the upper one's

void Form9_Load(Program& program) {
  Form9& form9 = *program.form9;
  form9.Centre();
  for (int gear = 1; gear <= kGears; ++gear) {
    form9.Label1[gear].ForeColor = program.workspace.GearColour[gear];
    form9.Label1[gear + kPickedRow].ForeColor = program.workspace.GearColour[gear];
  }
}

/// "Change".
/// Kept: the platform's dialog starts from the colour in use, so its Cancel takes an earlier pick back.
void Command1_Click(Program& program, int gear) {
  Form9& form9 = *program.form9;
  const Colour start = form9.Label1[gear].ForeColor;
  form9.Label1[gear + kPickedRow].ForeColor = program.machine.boxes.ChooseColour(start);
}

/// The colour as a decimal number. Failing writes go unnoticed.
void StoreColour(Program& program, int gear) {
  const auto number = static_cast<std::int32_t>(program.workspace.GearColour[gear].bgr);
  Store(program, ColourValue(gear), std::to_string(number));
}

/// Shows the gears' colours on the main window, stores them and closes the dialog.
void Apply(Program& program) {
  for (int gear = 1; gear <= kGears; ++gear) {
    ShowGearColour(program, gear);
    StoreColour(program, gear);
  }
  if (program.workspace.ModeWord != mode::kBasing) RedrawChart(program);
  program.form9->UnloadWindow();
}

/// "OK".
void Command2_Click(Program& program) {
  for (int gear = 1; gear <= kGears; ++gear) {
    program.workspace.GearColour[gear] = program.form9->Label1[gear + kPickedRow].ForeColor;
  }
  Apply(program);
}

/// "Cancel".
void Command3_Click(Program& program) {
  program.form9->UnloadWindow();
}

/// "Default", at once and without a question.
void Command4_Click(Program& program) {
  for (int gear = 1; gear <= kGears; ++gear) {
    program.workspace.GearColour[gear] = DesignedGearColour(gear);
  }
  Apply(program);
}

}  // namespace

void AttachColourDialog(Program& program) {
  program.form9.attach = [&program](Form9& form9) {
    On(program, form9.Load, Form9_Load);
    OnEach(program, form9.Command1, &Button::Click, Command1_Click);
    On(program, form9.Command2.Click, Command2_Click);
    On(program, form9.Command3.Click, Command3_Click);
    On(program, form9.Command4.Click, Command4_Click);
  };
}

}  // namespace veldrin
