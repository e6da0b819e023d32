#include "window_script/script_windows.h"

namespace veldrin {

void ScriptWindows::Loaded(Window& window) {
  told_->Loaded(window);
  shown_->Loaded(window);
}

void ScriptWindows::Unloaded(Window& window) {
  told_->Unloaded(window);
  shown_->Unloaded(window);
}

void ScriptWindows::SlotWritten(Control& control, const char* slot, bool changed) {
  told_->SlotWritten(control, slot, changed);
  shown_->SlotWritten(control, slot, changed);
}

void ScriptWindows::EventFired(Control& control, const Event& event) {
  told_->EventFired(control, event);
}

void ScriptWindows::ContentChanged(Control& control) {
  shown_->ContentChanged(control);
}

void ScriptWindows::RunModal(Window& window) {
  if (FormWidget* form = shown_->FormOf(window)) form->BecomeModal();
  told_->RunModal(window);
}

void ScriptWindows::Repaint(Control& control) {
  shown_->Repaint(control);
}

void ScriptWindows::Flash(Window& window) {
  told_->Flash(window);
  shown_->Flash(window);
}

void ScriptWindows::SetEllipticRegion(Window& window, int left, int top, int right, int bottom) {
  shown_->SetEllipticRegion(window, left, top, right, bottom);
}

void ScriptWindows::StartDrag(Window& /*window*/) {}

}  // namespace veldrin
