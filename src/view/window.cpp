#include "view/window.h"

#include <algorithm>

namespace veldrin {

namespace {

// The frame that the program counts with, in twips.
constexpr float kFrameWidth = 120;
constexpr float kFrameHeight = 405;
constexpr float kMenuHeight = 285;

void StateChanged(Control& control) {
  control.window.Resize();
}

void FireFocusEvent(Control& control, const char* eventName) {
  if (Event* event = control.FindEvent(eventName)) (*event)();
}

}  // namespace

Window::Window(Desk& theDesk, const char* windowName, const Place& place, const Look& windowLook,
               bool withMenu, bool withFrame)
    : PlacedControl(windowName, place, windowLook),
      desk(theDesk),
      hasMenu(withMenu),
      hasFrame(withFrame),
      Caption(*this, "Caption", windowLook.caption),
      WindowState(*this, "WindowState", 0, StateChanged),
      Load(*this, "Load"),
      QueryUnload(*this, "QueryUnload"),
      Unload(*this, "Unload"),
      Resize(*this, "Resize"),
      Activate(*this, "Activate"),
      Deactivate(*this, "Deactivate"),
      MouseDown(*this, "MouseDown") {
  Have(Caption, WindowState);
}

void Window::LoadWindow() {
  if (loaded) return;
  loaded = true;
  desk.machine.windows.Loaded(*this);
  Load();
}

bool Window::UnloadWindow(CloseReason reason) {
  if (!loaded) return true;
  closeRefused = false;
  QueryUnload(static_cast<int>(reason));
  if (closeRefused) return false;
  Unload();
  Hide();
  loaded = false;
  desk.machine.windows.Unloaded(*this);
  if (release) release();
  return true;
}

void Window::Show() {
  LoadWindow();
  if (Visible) {
    ComeToFront();
  } else {
    Visible = true;
  }
}

void Window::Hide() {
  Visible = false;
}

void Window::ShowModal() {
  LoadWindow();
  if (isModal && Visible) {
    ComeToFront();
    return;
  }
  isModal = true;
  desk.modal.push_back(this);
  Show();
  if (Visible) desk.machine.windows.RunModal(*this);
  isModal = false;
}

void Window::SetSize(float width, float height) {
  const bool wider = Width.Put(width);
  const bool higher = Height.Put(height);
  if (wider || higher) Resize();
}

void Window::Centre() {
  Centre(Width, Height);
}

void Window::Centre(float width, float height) {
  const Screen& screen = desk.machine.screen;
  Top = (screen.Height() - height) / 2;
  Left = (screen.Width() - width) / 2;
}

float Window::FrameWidth() const {
  return hasFrame ? kFrameWidth : 0;
}

float Window::FrameHeight() const {
  if (!hasFrame) return 0;
  return hasMenu ? kFrameHeight + kMenuHeight : kFrameHeight;
}

void Window::ComeToFront() {
  const bool behindModal = !desk.modal.empty() && desk.modal.back() != this;
  if (!Visible || desk.active == this || behindModal) return;
  if (desk.active != nullptr) desk.active->LoseActivity();
  if (!Visible) return;
  std::erase(desk.shown, this);
  desk.shown.insert(desk.shown.begin(), this);
  desk.active = this;
  TellWritten(*this, "ZOrder", true);
  Activate();
}

void Window::LoseActivity() {
  if (desk.active != this) return;
  desk.active = nullptr;
  Deactivate();
}

void Window::MoveFocus(Control* control) {
  if (focus == control) return;
  Control* const before = focus;
  focus = control;
  desk.machine.windows.ContentChanged(*this);
  if (before != nullptr) FireFocusEvent(*before, "LostFocus");
  // The handler of LostFocus may have moved the focus elsewhere.
  if (control != nullptr && focus == control) FireFocusEvent(*control, "GotFocus");
}

void Window::HandOnFocus() {
  if (focus == nullptr || IsUsable(*focus)) return;
  const auto place = std::find(controls.begin(), controls.end(), focus);
  std::vector<Control*> order(place, controls.end());
  order.insert(order.end(), controls.begin(), place);
  const auto next = std::find_if(order.begin(), order.end(), [](const Control* control) {
    return TakesFocus(*control) && IsUsable(*control);
  });
  MoveFocus(next == order.end() ? nullptr : *next);
}

void Window::VisibleChanged() {
  if (Visible) {
    desk.shown.push_back(this);
    ComeToFront();
    if (focus == nullptr) {
      const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
        return TakesFocus(*control) && IsUsable(*control);
      });
      if (first != controls.end()) MoveFocus(*first);
    }
    return;
  }
  std::erase(desk.shown, this);
  std::erase(desk.modal, this);
  LoseActivity();
  if (desk.active == nullptr && !Visible && !desk.shown.empty()) desk.shown.front()->ComeToFront();
}

}  // namespace veldrin
