// What the windows of the program ask of the one who shows them.
#pragma once

namespace veldrin {

struct Window;
struct Control;
class Event;

/// The front end of the windows. It finds what to show by walking a window's controls.
struct Windows {
  virtual ~Windows() = default;

  /// A window's record stands complete, still hidden; and it is about to go.
  virtual void Loaded(Window& window) = 0;
  virtual void Unloaded(Window& window) = 0;
  /// Whether slot writes are to be told at all; false keeps a write as cheap as an assignment.
  virtual bool IsWatching() const = 0;
  /// A slot of a control or of a window was written; `changed` tells whether its value differs from before.
  virtual void SlotWritten(Control& control, const char* slot, bool changed) = 0;
  /// An event of a control or of a window is about to be fired.
  virtual void EventFired(Control& control, const Event& event) = 0;
  /// Something was drawn on a control or window, or its entries changed.
  virtual void ContentChanged(Control& control) = 0;

  /// Runs the events of a window that was just shown modally; returns when it hides.
  virtual void RunModal(Window& window) = 0;
  /// Paints at once what is due.
  virtual void Repaint(Control& control) = 0;
  /// Inverts the window's title and task button.
  virtual void Flash(Window& window) = 0;
  /// Cuts the window to an ellipse, in pixels of its own.
  virtual void SetEllipticRegion(Window& window, int left, int top, int right, int bottom) = 0;
  /// The window follows the pointer as if its title bar were held.
  virtual void StartDrag(Window& window) = 0;
};

}  // namespace veldrin
