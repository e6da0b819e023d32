#include "view/controls.h"

#include "view/window.h"

#include <algorithm>

namespace veldrin {

namespace {

/// The reaction that fires the control's Change.
template <class Kind>
void FireChange(Control& control) {
  As<Kind>(control).Change();
}

/// A panel's surface is as large as the panel.
void KeepUpSurface(Control& control) {
  if (control.kind != ControlKind::Picture) return;
  auto& picture = As<Picture>(control);
  picture.surface.SetSize(picture.Width, picture.Height);
}

void SizeChanged(Control& control) {
  if (control.kind == ControlKind::Window) As<Window>(control).Resize();
}

void OptionChanged(Control& control) {
  auto& option = As<OptionButton>(control);
  if (!option.Value) return;
  for (Control* sibling : option.parent->children) {
    if (sibling->kind == ControlKind::OptionButton && sibling != &option) {
      As<OptionButton>(*sibling).Value.Put(false);
    }
  }
  option.Click();
}

}  // namespace

PlacedControl::PlacedControl(ControlKind kind, const char* name, Control& parent, const Place& place,
                             const Look& look)
    : Control(kind, name, parent, look),
      Left(*this, "Left", place.left),
      Top(*this, "Top", place.top),
      Width(*this, "Width", place.width, SizeChanged, nullptr, KeepUpSurface),
      Height(*this, "Height", place.height, SizeChanged, nullptr, KeepUpSurface) {
  HavePlaced();
}

PlacedControl::PlacedControl(const char* name, const Place& place, const Look& look)
    : Control(name, look),
      Left(*this, "Left", place.left),
      Top(*this, "Top", place.top),
      Width(*this, "Width", place.width, SizeChanged, nullptr, KeepUpSurface),
      Height(*this, "Height", place.height, SizeChanged, nullptr, KeepUpSurface) {
  HavePlaced();
}

void PlacedControl::HavePlaced() {
  Have(Left, Top, Width, Height, BackColor, ForeColor, FontName, FontSize, FontBold, FontItalic,
       MousePointer);
}

Label::Label(const char* name, Control& parent, const Place& place, const Look& look)
    : PlacedControl(ControlKind::Label, name, parent, place, look),
      Caption(*this, "Caption", look.caption, FireChange<Label>) {
  Have(Caption);
}

TextBox::TextBox(const char* name, Control& parent, const Place& place, const Look& look, bool severalLines)
    : FocusControl(ControlKind::TextBox, name, parent, place, look),
      multiLine(severalLines),
      Text(*this, "Text", look.caption, FireChange<TextBox>) {
  Have(Text);
}

Button::Button(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::Button, name, parent, place, look), Caption(*this, "Caption", look.caption) {
  Have(Caption);
}

OptionButton::OptionButton(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::OptionButton, name, parent, place, look),
      Caption(*this, "Caption", look.caption),
      Value(*this, "Value", false, OptionChanged) {
  Have(Caption, Value);
}

SpinButton::SpinButton(const char* name, Control& parent, const Place& place, const Look& look)
    : PlacedControl(ControlKind::SpinButton, name, parent, place, look) {}

ScrollBar::ScrollBar(const char* name, Control& parent, const Place& place, const Range& range,
                     const Look& look)
    : PlacedControl(ControlKind::ScrollBar, name, parent, place, look),
      smallChange(range.smallChange),
      largeChange(range.largeChange),
      Min(*this, "Min", range.min),
      Max(*this, "Max", range.max),
      Value(*this, "Value", range.value, FireChange<ScrollBar>) {
  Have(Min, Max, Value);
}

int ScrollBar::WithinEnds(int value) const {
  return std::max(std::min(value, Max.get()), Min.get());
}

TimerControl::TimerControl(const char* name, Control& parent, int interval, bool enabled)
    : Control(ControlKind::Timer, name, parent, Look{.enabled = enabled}),
      Interval(*this, "Interval", interval) {
  Have(Interval);
}

Menu::Menu(const char* name, Control& parent, const char* caption, const char* keys, const Look& look)
    : Control(ControlKind::Menu, name, parent, look), shortcut(keys), Caption(*this, "Caption", caption) {
  Have(Caption);
}

Picture::Picture(const char* name, Control& parent, const Place& place, const Look& look)
    : PlacedControl(ControlKind::Picture, name, parent, place, look),
      Image(*this, "Image", 0),
      surface(parent.window.desk.machine.metrics) {
  Have(Image);
  surface.SetSize(place.width, place.height);
  surface.font = {FontName, FontSize, FontBold, FontItalic};
  surface.changed = [this] { window.desk.machine.windows.ContentChanged(*this); };
}

Line::Line(const char* name, Control& parent, float x1, float y1, float x2, float y2, Colour colour)
    : Control(ControlKind::Line, name, parent, {}),
      X1(*this, "X1", x1),
      Y1(*this, "Y1", y1),
      X2(*this, "X2", x2),
      Y2(*this, "Y2", y2),
      ForeColor(*this, "ForeColor", colour) {
  Have(X1, Y1, X2, Y2, ForeColor);
}

Dialog::Dialog(const char* name, Control& parent) : Control(ControlKind::Dialog, name, parent, {}) {}

}  // namespace veldrin
