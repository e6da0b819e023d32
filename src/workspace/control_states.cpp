#include "workspace/control_states.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <type_traits>

namespace veldrin {

namespace {

constexpr int kRowsToStep = 2;  // primary rows that make stepping worth its arrows

/// Controls of a window that is written to, or of one that is only asked.
template <class Form, std::size_t kCount>
using ControlsOf = std::array<std::conditional_t<std::is_const_v<Form>, const Control*, Control*>, kCount>;

template <class Form>
ControlsOf<Form, 6> Output(Form& form2) {
  return {&form2.menu_save, &form2.Command5,  &form2.menu_print,
          &form2.menu_comb, &form2.menu_edit, &form2.Picture28};
}

template <class Form>
ControlsOf<Form, 9> TakenBySearch(Form& form2) {
  return {&form2.Command2,  &form2.Command3,  &form2.Command4, &form2.Command5, &form2.Picture28,
          &form2.menu_file, &form2.menu_edit, &form2.menu_f,   &form2.menu_opt};
}

bool Holds(std::span<const Control* const> controls, const Control& control) {
  return std::find(controls.begin(), controls.end(), &control) != controls.end();
}

/// The picture of the printer tells by its pointer whether it can be used.
void Enable(Form2& form2, std::span<Control* const> controls, bool enabled) {
  for (Control* control : controls) {
    if (control == &form2.Picture28) {
      form2.Picture28.MousePointer = enabled ? kPointerDefault : kPointerNoDrop;
    } else {
      control->Enabled = enabled;
    }
  }
}

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
  Enable(program.form2, Output(program.form2), enabled);
}

bool IsOutput(const Form2& form2, const Control& control) {
  return Holds(Output(form2), control);
}

bool ShowsForbiddenPair(const Form2& form2) {
  return form2.Label12[kThirdGear].BackColor == kRed;  // the 4th is red with it
}

bool IsManual(const Form2& form2, int gear) {
  return form2.Command1[gear].Caption == kManual;
}

void DisableForSearch(Form2& form2) {
  Enable(form2, TakenBySearch(form2), false);
}

bool IsTakenBySearch(const Form2& form2, const Control& control) {
  return Holds(TakenBySearch(form2), control);
}

bool HasPrimariesToStep(const Workspace& workspace) {
  return workspace.PrimaryCount >= kRowsToStep;
}

void EnableRowSpins(Program& program) {
  if (HasPrimariesToStep(program.workspace)) EnableSpin(program.form2.Spin4);
  EnableSpin(program.form2.Spin5);
}

void ShowGearColour(const Workspace& workspace, int gear,
                    std::initializer_list<ControlArray<Label>*> columns) {
  for (ControlArray<Label>* column : columns) (*column)[gear].ForeColor = workspace.GearColour[gear];
}

void ShowGearColour(Program& program, int gear) {
  Form2& form2 = program.form2;
  ShowGearColour(program.workspace, gear,
                 {&form2.Label1, &form2.Label2, &form2.Label9, &form2.Label31, &form2.Label32, &form2.Label33,
                  &form2.Label44});
}

void EnableRestore(Program& program, bool enabled) {
  program.form2.Command7.Enabled = enabled;
  program.form2.f_rest.Enabled = enabled;
}

}  // namespace veldrin
