// The hand that does a script's gestures. This one works on the view alone; a front end with widgets has one
// of its own, whose gestures are mouse and key events of the widgets.
#pragma once

#include "view/user_input.h"
#include "workspace/program.h"

#include <optional>
#include <string>
#include <vector>

namespace veldrin {

struct SimulatedBitmap;
struct SimulatedMachine;

/// A widget that shows something else than the slot that it stands for.
struct Mismatch {
  std::string name;
  std::string slot;
  std::string shown;
};

class ScriptHand {
 public:
  virtual ~ScriptHand() = default;

  /// The machine that programs are made on: the simulated one, or one that shows its windows as well.
  virtual Machine& MachineOf(SimulatedMachine& simulated);
  /// Before every program's first event, and behind its last one.
  virtual void ProgramMade(Program& /*program*/) {}
  virtual void ProgramGone(Program& /*program*/) {}

  // The gestures, as view/user_input.h tells them, each one event of the program. They return whether the
  // user could do it; one that ended the program was done.
  virtual bool Focus(Program& program, Control& control);
  virtual bool Click(Program& program, Control& control, int button);
  virtual bool DoubleClick(Program& program, Control& control);
  virtual bool DoubleClickEntry(Program& program, FileBox& box, const std::string& entry);
  virtual bool PressKey(Program& program, Control& control, int key);
  virtual bool EnterText(Program& program, Control& control, const std::string& text);
  virtual bool TypeText(Program& program, Control& control, const std::string& text);
  virtual bool SelectEntry(Program& program, Control& control, const std::string& entry);
  virtual bool OpenFolder(Program& program, FolderBox& box, const std::string& path);
  virtual bool HighlightFolder(Program& program, FolderBox& box, const std::string& folder);
  virtual bool PickCell(Program& program, Grid& grid, int row, int column);
  virtual bool Spin(Program& program, SpinButton& spin, bool up);
  virtual bool ScrollTo(Program& program, ScrollBar& bar, int value);
  virtual bool Resize(Program& program, Window& window, float width, float height);
  virtual bool Move(Program& program, Window& window, float left, float top);
  virtual bool SetState(Program& program, Window& window, int state);
  virtual bool Close(Program& program, Window& window, CloseReason reason);
  virtual bool Activate(Program& program, Window& window);
  virtual bool Deactivate(Program& program, Window& window);
  /// A file of the machine is dropped on the window; only the main window takes any.
  virtual bool Drop(Program& program, Window& window, const std::string& path);

  /// Writes a picture of the window to a file of the real machine; false where there is nothing to see.
  virtual bool Screenshot(Program& /*program*/, Window& /*window*/, const std::string& /*file*/) {
    return false;
  }
  /// The same of the bitmap on the clipboard.
  virtual bool Screenshot(const SimulatedBitmap& /*bitmap*/, const std::string& /*file*/) { return false; }
  /// What a widget shows for a slot that a script asks for, to be held against the slot's text; nothing where
  /// there is nothing to compare.
  virtual std::optional<std::string> Shown(const Control& /*control*/, const std::string& /*slot*/) {
    return std::nullopt;
  }
  /// What widgets show otherwise than their slots say, asked behind every command but questions.
  virtual std::vector<Mismatch> Mismatches() { return {}; }
};

}  // namespace veldrin
