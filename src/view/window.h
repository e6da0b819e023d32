// Windows, and the desk on which the program's windows lie: which are shown, which is active, which are
// modal.
//
// A window is loaded (its record announced to the machine, its Load event fired), shown and hidden any number
// of times, and unloaded. Showing one makes it the active window: the one that was active before gets
// Deactivate, the new one Activate. A window shown while a modal one is up stays behind that. Hiding the
// active window hands activity to the next one shown.
#pragma once

#include "view/controls.h"
#include "view/machine.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace veldrin {

/// Windows of one program, in the order in which they lie, the front first.
struct Desk {
  explicit Desk(Machine& theMachine) : machine(theMachine) {}

  Machine& machine;
  std::vector<Window*> shown;
  /// Modal windows that are up, the innermost last.
  std::vector<Window*> modal;
  Window* active = nullptr;
  /// Records that are out of use but may still be inside one of their own events. Emptied between events.
  std::vector<std::shared_ptr<void>> retired;
};

enum class WindowState : int { Normal = 0, Minimised = 1, Maximised = 2 };

/// Why a window is asked to close, by the platform's numbers.
enum class CloseReason : int { User = 0, Code = 1, SessionEnd = 2 };

struct Window : PlacedControl {
  Window(Desk& theDesk, const char* name, const Place& place, const Look& look, bool withMenu = false,
         bool withFrame = true);

  Desk& desk;
  const bool hasMenu;
  const bool hasFrame;
  /// Every control, in the order of the screen.
  std::vector<Control*> controls;
  bool loaded = false;
  bool isModal = false;
  /// The control that has the window's focus; null for none.
  Control* focus = nullptr;
  /// Set by the QueryUnload handler to keep the window.
  bool closeRefused = false;
  /// Lets go of the record after an unload; set by whoever keeps short-lived windows.
  std::function<void()> release;

  Slot<std::string> Caption;
  Slot<int> WindowState;

  Event Load;
  Event QueryUnload;
  Event Unload;
  Event Resize;
  Event Activate;
  Event Deactivate;
  Event MouseDown;

  /// Announces the record to the machine and fires Load. A loaded window stays as it is.
  void LoadWindow();
  /// Asks QueryUnload, fires Unload, hides the window and takes it from the machine. False when the close
  /// was refused.
  bool UnloadWindow(CloseReason reason = CloseReason::Code);

  void Show();
  void Hide();
  /// Shows the window in front of all others and returns when it is hidden. A window that is modal already
  /// stays so, and the call returns at once.
  void ShowModal();

  /// Outer size in twips at once, as a user's drag gives it: one Resize.
  void SetSize(float width, float height);
  /// Puts the window in the middle of the screen, by its own size or by another outer one in twips.
  void Centre();
  void Centre(float width, float height);
  /// How much smaller the window is inside than outside, in twips: what a frame and a menu bar of the
  /// program's own time take, whatever the desktop's are.
  float FrameWidth() const;
  float FrameHeight() const;
  float InnerWidth() const { return Width - FrameWidth(); }
  float InnerHeight() const { return Height - FrameHeight(); }

  /// Becomes the active window, the others' Deactivate first.
  void ComeToFront();
  /// Stops being the active window.
  void LoseActivity();

  /// Moves the focus; null takes it from everybody. LostFocus, then GotFocus.
  void MoveFocus(Control* control);
  /// What has the focus and cannot keep it hands it to the next control in the order of the screen.
  void HandOnFocus();
  /// Shown or hidden: called by Visible.
  void VisibleChanged();
};

/// A short-lived window: no record until it is loaded, none after it is unloaded.
template <class Form>
class TransientWindow {
 public:
  explicit TransientWindow(Desk& desk) : desk_(desk) {}

  /// Binds the events of every record made from now on.
  std::function<void(Form&)> attach;

  /// Makes the record and fires Load. A window that is there stays as it is.
  Form& Load() {
    if (!form_) {
      form_ = std::make_shared<Form>(desk_);
      form_->release = [this] { desk_.retired.push_back(std::move(form_)); };
      if (attach) attach(*form_);
      form_->LoadWindow();
    }
    return *form_;
  }

  explicit operator bool() const { return form_ != nullptr; }
  Form& operator*() const { return *form_; }
  Form* operator->() const { return form_.get(); }

 private:
  Desk& desk_;
  std::shared_ptr<Form> form_;
};

}  // namespace veldrin
