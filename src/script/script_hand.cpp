#include "script/script_hand.h"

#include "dialogs/dropped_file.h"
#include "program/event_boundary.h"
#include "simulated/simulated_machine.h"

namespace veldrin {

namespace {

template <class Gesture>
bool Do(Program& program, Gesture&& gesture) {
  bool done = true;
  RunEvent(program, [&] { done = gesture(); });
  return done;
}

}  // namespace

Machine& ScriptHand::MachineOf(SimulatedMachine& simulated) {
  return simulated.machine;
}

bool ScriptHand::Focus(Program& program, Control& control) {
  return Do(program, [&] { return user::Focus(control); });
}

bool ScriptHand::Click(Program& program, Control& control, int button) {
  return Do(program, [&] { return user::Click(control, button); });
}

bool ScriptHand::DoubleClick(Program& program, Control& control) {
  return Do(program, [&] { return user::DoubleClick(control); });
}

bool ScriptHand::DoubleClickEntry(Program& program, FileBox& box, const std::string& entry) {
  return Do(program, [&] { return user::DoubleClickEntry(box, entry); });
}

bool ScriptHand::PressKey(Program& program, Control& control, int key) {
  return Do(program, [&] { return user::PressKey(control, key); });
}

bool ScriptHand::EnterText(Program& program, Control& control, const std::string& text) {
  return Do(program, [&] { return user::EnterText(control, text); });
}

bool ScriptHand::TypeText(Program& program, Control& control, const std::string& text) {
  return Do(program, [&] { return user::TypeText(control, text); });
}

bool ScriptHand::SelectEntry(Program& program, Control& control, const std::string& entry) {
  return Do(program, [&] { return user::SelectEntry(control, entry); });
}

bool ScriptHand::OpenFolder(Program& program, FolderBox& box, const std::string& path) {
  return Do(program, [&] { return user::OpenFolder(box, path); });
}

bool ScriptHand::HighlightFolder(Program& program, FolderBox& box, const std::string& folder) {
  return Do(program, [&] { return user::HighlightFolder(box, folder); });
}

bool ScriptHand::PickCell(Program& program, Grid& grid, int row, int column) {
  return Do(program, [&] { return user::PickCell(grid, row, column); });
}

bool ScriptHand::Spin(Program& program, SpinButton& spin, bool up) {
  return Do(program, [&] { return user::Spin(spin, up); });
}

bool ScriptHand::ScrollTo(Program& program, ScrollBar& bar, int value) {
  return Do(program, [&] { return user::ScrollTo(bar, value); });
}

bool ScriptHand::Resize(Program& program, Window& window, float width, float height) {
  return Do(program, [&] { return user::Resize(window, width, height); });
}

bool ScriptHand::Move(Program& program, Window& window, float left, float top) {
  return Do(program, [&] { return user::Move(window, left, top); });
}

bool ScriptHand::SetState(Program& program, Window& window, int state) {
  return Do(program, [&] { return user::SetState(window, state); });
}

bool ScriptHand::Close(Program& program, Window& window, CloseReason reason) {
  return Do(program, [&] { return user::Close(window, reason); });
}

bool ScriptHand::Activate(Program& program, Window& window) {
  return Do(program, [&] { return user::Activate(window); });
}

bool ScriptHand::Deactivate(Program& program, Window& window) {
  return Do(program, [&] { return user::Deactivate(window); });
}

bool ScriptHand::Drop(Program& program, Window& window, const std::string& path) {
  return Do(program, [&] { return &window == &program.form2 && OpenDroppedFile(program, path); });
}

}  // namespace veldrin
