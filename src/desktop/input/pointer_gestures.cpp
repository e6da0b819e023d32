#include "desktop/input/pointer_gestures.h"

namespace veldrin {

namespace {

void Fire(Control& control, const char* eventName, int argument = 0) {
  if (Event* event = control.FindEvent(eventName)) (*event)(argument);
}

}  // namespace

bool PressPointer(Control& control, int button) {
  if (!user::Reachable(control)) return false;
  if (!(TakesFocus(control) ? user::Focus(control) : user::Activate(control.window))) return false;
  if (!user::Reachable(control)) return false;
  Fire(control, "MouseDown", button);
  return true;
}

bool ReleasePointer(Control& control, int button, bool inside) {
  const bool isButton = control.kind == ControlKind::Button || control.kind == ControlKind::OptionButton;
  if (isButton && !inside) return true;
  Fire(control, "MouseUp", button);
  if (button == kLeftButton && inside) user::FinishClick(control);
  return true;
}

bool DoublePress(Control& control) {
  if (control.FindEvent("DblClick") == nullptr || !user::Reachable(control)) return false;
  Fire(control, "DblClick");
  return true;
}

}  // namespace veldrin
