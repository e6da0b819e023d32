// The program's windows on the screen: carries what the program writes to the widgets, and runs modal
// windows.
#pragma once

#include "desktop/windows/form_widget.h"
#include "platform/screen.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <memory>
#include <vector>

namespace veldrin {

class DesktopWindows : public Windows {
 public:
  /// Listens to the stage's zoom and to the ends of its events.
  explicit DesktopWindows(Stage& stage);
  ~DesktopWindows() override;

  /// The widgets of the loaded windows, in the order in which they were made.
  const std::vector<std::unique_ptr<FormWidget>>& Forms() const { return forms_; }
  /// The widget of a window; null while there is none.
  FormWidget* FormOf(const Window& window) const;
  /// Makes the widgets of a window that will be loaded soon, when there is time for it.
  void Prepare(Window& window);
  /// What the program left for the ends of events; outside of events, also those widgets that are out of use.
  void Settle();
  /// Lets go of every window, when the program is gone.
  void Forget();

  void Loaded(Window& window) override;
  void Unloaded(Window& window) override;
  bool IsWatching() const override { return true; }
  void SlotWritten(Control& control, const char* slot, bool changed) override;
  void EventFired(Control& /*control*/, const Event& /*event*/) override {}
  void ContentChanged(Control& control) override;

  /// Runs a loop of Qt's until the window hides. Throws EndOfProgram when the program ended meanwhile.
  void RunModal(Window& window) override;
  /// Paints at once, but not more often than an eye can follow, so that a search that blinks stays fast.
  void Repaint(Control& control) override;
  void Flash(Window& window) override;
  void SetEllipticRegion(Window& window, int left, int top, int right, int bottom) override;
  void StartDrag(Window& window) override;

 private:
  struct ModalLoop {
    const Window* window;
    QEventLoop* loop;
  };

  void Build(Window& window);
  void Retire(const Window& window);

  Stage* stage_;
  /// Loaded windows without timers get their widgets when they are first shown: the start is faster so.
  std::vector<Window*> waiting_;
  std::vector<std::unique_ptr<FormWidget>> forms_;
  std::vector<std::unique_ptr<FormWidget>> retired_;
  std::vector<ModalLoop> loops_;
  QElapsedTimer sinceRepaint_;
};

}  // namespace veldrin
