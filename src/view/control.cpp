#include "view/control.h"

#include "view/window.h"

#include <algorithm>

namespace veldrin {

void TellWritten(Control& control, const char* slot, bool changed) {
  if (control.window.desk.machine.windows.IsWatching()) {
    control.window.desk.machine.windows.SlotWritten(control, slot, changed);
  }
}

Event::Event(Control& control, const char* name) : control_(&control), name_(name) {
  control.events.push_back(this);
}

void Event::operator()(int argument) {
  control_->window.desk.machine.windows.EventFired(*control_, *this);
  if (handler_) handler_(argument);
}

void Event::Bind(Handler handler) {
  handler_ = std::move(handler);
  ++claims_;
}

namespace {

/// What has the focus and cannot keep it hands it on.
void FocusMayMove(Control& control) {
  control.window.HandOnFocus();
}

}  // namespace

Control::Control(ControlKind controlKind, const char* controlName, Control& around, const Look& controlLook)
    : kind(controlKind),
      name(controlName),
      parent(&around),
      window(around.window),
      look(controlLook),
      Visible(*this, "Visible", controlLook.visible, FocusMayMove),
      Enabled(*this, "Enabled", controlLook.enabled, FocusMayMove) {
  Have(Visible, Enabled);
  if (kind == ControlKind::Menu) {
    parent->children.push_back(this);
  } else {
    parent->children.insert(parent->children.begin(), this);
  }
  window.controls.push_back(this);
}

Control::Control(const char* controlName, const Look& controlLook)
    : kind(ControlKind::Window),
      name(controlName),
      parent(nullptr),
      window(static_cast<Window&>(*this)),
      look(controlLook),
      Visible(*this, "Visible", false, [](Control& control) { control.window.VisibleChanged(); }),
      Enabled(*this, "Enabled", true) {
  Have(Visible, Enabled);
}

void Control::BringToFront() {
  if (parent == nullptr) {
    window.ComeToFront();
    return;
  }
  auto& siblings = parent->children;
  const auto place = std::find(siblings.begin(), siblings.end(), this);
  const bool changed = place != siblings.begin();
  std::rotate(siblings.begin(), place, place + 1);
  TellWritten(*this, "ZOrder", changed);
}

int Control::ZOrder() const {
  if (parent == nullptr) return 0;
  const auto& siblings = parent->children;
  return static_cast<int>(std::find(siblings.begin(), siblings.end(), this) - siblings.begin());
}

std::string Control::IndexedName() const {
  return index == kNoIndex ? name : name + "(" + std::to_string(index) + ")";
}

std::string Control::FullName() const {
  return parent == nullptr ? name : window.name + "." + IndexedName();
}

Event* Control::FindEvent(std::string_view eventName) const {
  const auto found = std::find_if(events.begin(), events.end(),
                                  [&](const Event* event) { return event->Name() == eventName; });
  return found == events.end() ? nullptr : *found;
}

const AnySlot* Control::FindSlot(std::string_view slotName) const {
  const auto found = std::find_if(slots.begin(), slots.end(), [&](const AnySlot& slot) {
    return std::visit([&](const auto* typed) { return typed->Name() == slotName; }, slot);
  });
  return found == slots.end() ? nullptr : &*found;
}

bool IsUsable(const Control& control) {
  for (const Control* around = &control; around->parent != nullptr; around = around->parent) {
    if (!around->Visible || !around->Enabled) return false;
  }
  return true;
}

bool TakesFocus(const Control& control) {
  switch (control.kind) {
    case ControlKind::TextBox:
    case ControlKind::Button:
    case ControlKind::OptionButton:
    case ControlKind::Grid:
    case ControlKind::ComboBox:
    case ControlKind::DriveBox:
    case ControlKind::FolderBox:
    case ControlKind::FileBox:
      return true;
    default:
      return false;
  }
}

void SetFocus(Control& control) {
  if (TakesFocus(control) && IsUsable(control)) control.window.MoveFocus(&control);
}

}  // namespace veldrin
