#include "workspace/control_states.h"

namespace veldrin {

namespace {

constexpr int kRowsToStep = 2;  // primary rows that make stepping worth its arrows

}  // namespace

void ShowAll(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Visible = true;
}

void HideAll(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Visible = false;
}

void EnableAll(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Enabled = true;
}

void DisableAll(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Enabled = false;
}

void EnableSpin(SpinButton& spin) {
  spin.Enabled = true;
  spin.ForeColor = kBlack;
}

void DisableSpin(SpinButton& spin) {
  spin.Enabled = false;
  spin.ForeColor = kLightGrey;
}

void EnableOutput(Program& program, bool enabled) {
  Form2& form2 = program.form2;
  form2.menu_save.Enabled = enabled;
  form2.Command5.Enabled = enabled;
  form2.menu_print.Enabled = enabled;
  form2.menu_comb.Enabled = enabled;
  form2.menu_edit.Enabled = enabled;
  form2.Picture28.MousePointer = enabled ? kPointerDefault : kPointerNoDrop;
}

void EnableRowSpins(Program& program) {
  if (program.workspace.PrimaryCount >= kRowsToStep) EnableSpin(program.form2.Spin4);
  EnableSpin(program.form2.Spin5);
}

void ShowGearColour(Program& program, int gear) {
  Form2& form2 = program.form2;
  for (auto* labels : {&form2.Label1, &form2.Label2, &form2.Label9, &form2.Label31, &form2.Label32,
                       &form2.Label33, &form2.Label44}) {
    (*labels)[gear].ForeColor = program.workspace.GearColour[gear];
  }
}

void EnableRestore(Program& program, bool enabled) {
  program.form2.Command7.Enabled = enabled;
  program.form2.f_rest.Enabled = enabled;
}

}  // namespace veldrin
