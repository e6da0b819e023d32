#include "desktop/input/keyboard.h"

#include "desktop/controls/shown_control.h"
#include "desktop/input/help_key.h"
#include "desktop/input/hint_key.h"
#include "desktop/input/reach.h"
#include "runtime/text.h"
#include "view/user_input.h"

#include <algorithm>

namespace veldrin {

namespace {

/// An option beside which another one is chosen.
bool IsUnchosenOption(const Control& control) {
  if (control.kind != ControlKind::OptionButton) return false;
  if (static_cast<const OptionButton&>(control).Value) return false;
  return std::any_of(
      control.parent->children.begin(), control.parent->children.end(), [](const Control* other) {
        return other->kind == ControlKind::OptionButton && static_cast<const OptionButton*>(other)->Value;
      });
}

bool IsOnTheWay(const Control* control) {
  return TakesFocus(*control) && IsUsable(*control) && !IsUnchosenOption(*control);
}

bool ReadsCancel(const Control& control) {
  if (control.kind != ControlKind::Button) return false;
  const std::string& caption = static_cast<const Button&>(control).Caption;
  return EqualsIgnoringCase(caption, "Cancel") || caption == "キャンセル";
}

/// Windows beside the main one, unless they say Cancel, if only in grey. The splash has nothing to close it
/// by.
bool MayCloseByEscape(const Window& window) {
  if (window.hasMenu || !(window.hasFrame || window.isModal)) return false;
  return std::none_of(window.controls.begin(), window.controls.end(),
                      [](const Control* control) { return ReadsCancel(*control) && IsShown(*control); });
}

}  // namespace

Control* NextByTab(const Window& window, bool forward) {
  std::vector<Control*> order = window.controls;
  if (!forward) std::reverse(order.begin(), order.end());
  const auto now = std::find(order.begin(), order.end(), window.focus);
  if (now != order.end()) std::rotate(order.begin(), now + 1, order.end());
  const auto next = std::find_if(order.begin(), order.end(), IsOnTheWay);
  return next == order.end() ? nullptr : *next;
}

Control* CancelButton(const Window& window) {
  const auto found =
      std::find_if(window.controls.rbegin(), window.controls.rend(),
                   [](const Control* control) { return ReadsCancel(*control) && user::Reachable(*control); });
  return found == window.controls.rend() ? nullptr : *found;
}

bool ServeTab(Stage& stage, const Window& window, const QKeyEvent& event) {
  const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
  if (!isTab || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
  const bool forward = event.key() == Qt::Key_Tab && (event.modifiers() & Qt::ShiftModifier) == 0;
  if (Control* next = NextByTab(window, forward)) {
    stage.input.Do([next] { return user::Focus(*next); });
  }
  return true;
}

bool ServeEscape(Stage& stage, Window& window, const QKeyEvent& event) {
  if (event.key() != Qt::Key_Escape || event.modifiers() != Qt::NoModifier) return false;
  Control* target = CancelButton(window);
  const bool inList = window.focus != nullptr && window.focus->kind == ControlKind::Grid;
  if (inList) target = NextByTab(window, true);
  if (target == nullptr && (inList || !MayCloseByEscape(window))) return false;
  // A key that is held would go on to close the window behind the one that it closed.
  if (event.isAutoRepeat()) return true;
  if (target == nullptr) {
    stage.input.Do([&] { return user::Close(window, CloseReason::User); });
    return true;
  }
  stage.input.Do([&] { return inList ? user::Focus(*target) : user::Click(*target); });
  return true;
}

bool ServeWindowKey(Stage& stage, Window& window, const QWidget& widget, const QKeyEvent& event) {
  return ServeReached(stage, window, widget, event) || ServeTab(stage, window, event) ||
         ServeEscape(stage, window, event) || ServeReach(window, widget, event) ||
         ServeHelp(stage, window, widget, event) || ServeHint(stage, window, widget, event);
}

}  // namespace veldrin
