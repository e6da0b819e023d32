#include "tests/monkey/covered.h"

namespace veldrin::monkey {

bool IsCovered(const Control& control) {
  if (control.window.name != "Form2") return false;
  const auto& form2 = static_cast<const Form2&>(control.window);
  for (const Control* panel = &control; panel != nullptr; panel = panel->parent) {
    if (panel != &form2.Picture4) continue;
    return form2.Picture12.Visible && form2.Picture12.ZOrder() < panel->ZOrder();
  }
  return false;
}

bool IsAboutCovered(ScriptWorld& world, const Deed& deed) {
  if (deed.control.empty()) return false;
  const NamePart part{deed.control, deed.index < 0 ? std::vector<int>{} : std::vector<int>{deed.index}};
  const Control* const control = world.catalogue.FindControl(world.Running(), deed.window, part).control;
  return control != nullptr && IsCovered(*control);
}

}  // namespace veldrin::monkey
