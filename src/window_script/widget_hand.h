// The hand that does a script's gestures with mouse and keys, on the widgets of the desktop program.
//
// A click is a mouse event on the widget, a typed text comes as an input method would bring it, a menu entry
// is triggered as its key does it. Gestures that no single event stands for go to the program directly:
// moving the focus, the state and the activity of windows, and clicks on lists and scroll bars where nothing
// is to be picked. Whatever was done, the widgets are compared with the slots afterwards.
//
//   widget_hand.cpp           gestures on controls, and holding the widgets against the slots
//   widget_hand_windows.cpp   what is done to a window as a whole
//
// An event of the program may throw, at its end or at the script's; Qt is behind it by then, and the hand
// throws it on.
#pragma once

#include "desktop/windows/desktop_windows.h"
#include "script/script_hand.h"
#include "view/machine.h"
#include "window_script/script_windows.h"

#include <QPoint>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace veldrin {

class WidgetHand : public ScriptHand {
 public:
  explicit WidgetHand(double zoom);

  Machine& MachineOf(SimulatedMachine& simulated) override;
  void ProgramMade(Program& program) override;
  void ProgramGone(Program& program) override;

  bool Click(Program& program, Control& control, int button) override;
  bool DoubleClick(Program& program, Control& control) override;
  bool DoubleClickEntry(Program& program, FileBox& box, const std::string& entry) override;
  bool PressKey(Program& program, Control& control, int key) override;
  bool EnterText(Program& program, Control& control, const std::string& text) override;
  bool TypeText(Program& program, Control& control, const std::string& text) override;
  bool SelectEntry(Program& program, Control& control, const std::string& entry) override;
  bool OpenFolder(Program& program, FolderBox& box, const std::string& path) override;
  bool HighlightFolder(Program& program, FolderBox& box, const std::string& folder) override;
  bool PickCell(Program& program, Grid& grid, int row, int column) override;
  bool Spin(Program& program, SpinButton& spin, bool up) override;
  bool ScrollTo(Program& program, ScrollBar& bar, int value) override;
  bool Resize(Program& program, Window& window, float width, float height) override;
  bool Close(Program& program, Window& window, CloseReason reason) override;
  bool Drop(Program& program, Window& window, const std::string& path) override;

  bool Screenshot(Program& program, Window& window, const std::string& file) override;
  bool Screenshot(const SimulatedBitmap& bitmap, const std::string& file) override;
  std::vector<Mismatch> Mismatches() override;

 private:
  /// The view of a control of a loaded window; null for none.
  ControlView* ViewOf(const Control& control) const;
  /// Whatever a call of Qt does, and whether the program could do what the user wanted by it.
  template <class Call>
  bool Through(Call&& call) {
    stage_.input.Forget();
    call();
    stage_.input.RethrowCaught();
    return stage_.input.LastDone();
  }
  bool ClickAt(QWidget& widget, const QPoint& point, int button, bool twice = false);
  /// The widget that takes the text; null where the control is out of reach or a line has no room for it.
  QWidget* BoxFor(const Control& control, const std::string& text) const;

  Stage stage_;
  DesktopWindows windows_{stage_};
  std::optional<ScriptWindows> scriptWindows_;
  std::optional<Machine> machine_;
  /// Differences that have been told and stand still; each is told once.
  std::set<std::string> told_;
};

}  // namespace veldrin
