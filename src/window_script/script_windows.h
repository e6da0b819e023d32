// Windows on the screen that belong to a script: the simulated machine goes on keeping its record of them,
// the widgets follow, and the script's own lines are the loop of a modal window.
#pragma once

#include "desktop/windows/desktop_windows.h"
#include "simulated/simulated_windows.h"

namespace veldrin {

class ScriptWindows : public Windows {
 public:
  ScriptWindows(SimulatedWindows& told, DesktopWindows& shown) : told_(&told), shown_(&shown) {}

  void Loaded(Window& window) override;
  void Unloaded(Window& window) override;
  bool IsWatching() const override { return true; }
  void SlotWritten(Control& control, const char* slot, bool changed) override;
  void EventFired(Control& control, const Event& event) override;
  void ContentChanged(Control& control) override;
  void RunModal(Window& window) override;
  void Repaint(Control& control) override;
  void Flash(Window& window) override;
  void SetEllipticRegion(Window& window, int left, int top, int right, int bottom) override;
  void StartDrag(Window& window) override;

 private:
  SimulatedWindows* told_;
  DesktopWindows* shown_;
};

}  // namespace veldrin
