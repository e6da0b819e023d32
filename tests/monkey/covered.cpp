#include "tests/monkey/covered.h"

#include <algorithm>

namespace veldrin::monkey {

namespace {

bool HidesRequests(const Form2& form2) {
  return form2.Picture4.Visible && form2.Picture12.Visible &&
         form2.Picture12.ZOrder() < form2.Picture4.ZOrder();
}

bool IsWithin(const Control& control, const Control& panel) {
  const Control* around = &control;
  while (around != nullptr && around != &panel) around = around->parent;
  return around != nullptr;
}

}  // namespace

bool IsCovered(const Control& control) {
  if (control.window.name != "Form2") return false;
  const auto& form2 = static_cast<const Form2&>(control.window);
  return HidesRequests(form2) && IsWithin(control, form2.Picture4);
}

bool IsAboutCovered(const Program& program, const Deed& deed) {
  const Form2& form2 = program.form2;
  if (deed.window != "Form2" || !HidesRequests(form2)) return false;
  return std::any_of(form2.controls.begin(), form2.controls.end(), [&](const Control* control) {
    return control->name == deed.control && control->index == deed.index &&
           IsWithin(*control, form2.Picture4);
  });
}

}  // namespace veldrin::monkey
