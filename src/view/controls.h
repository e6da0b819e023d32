// The kinds of controls, each a record of its slots and events. Those that hold a list are in list_boxes.h,
// the grid is in grid.h.
//
// Which write fires what: a label's Caption, a text box's Text and a scroll bar's Value fire Change; an
// option that is set fires Click.
#pragma once

#include "platform/canvas.h"
#include "view/control.h"

#include <string>

namespace veldrin {

/// A control with a place, colours and a font.
struct PlacedControl : Control {
  PlacedControl(ControlKind kind, const char* name, Control& parent, const Place& place, const Look& look);

  Slot<float> Left;
  Slot<float> Top;
  Slot<float> Width;
  Slot<float> Height;
  Slot<Colour> BackColor{*this, "BackColor", look.back};
  Slot<Colour> ForeColor{*this, "ForeColor", look.fore};
  Slot<std::string> FontName{*this, "FontName", "Arial"};
  Slot<float> FontSize{*this, "FontSize", look.fontSize};
  Slot<bool> FontBold{*this, "FontBold", look.fontBold};
  Slot<bool> FontItalic{*this, "FontItalic", false};
  Slot<int> MousePointer{*this, "MousePointer", kPointerDefault};

 protected:
  PlacedControl(const char* name, const Place& place, const Look& look);

 private:
  void HavePlaced();
};

/// A control that can have the focus.
struct FocusControl : PlacedControl {
  using PlacedControl::PlacedControl;

  Event KeyDown{*this, "KeyDown"};
  Event GotFocus{*this, "GotFocus"};
  Event LostFocus{*this, "LostFocus"};
};

struct Label : PlacedControl {
  Label(const char* name, Control& parent, const Place& place, const Look& look = {});

  Slot<std::string> Caption;
  Event Change{*this, "Change"};
  Event Click{*this, "Click"};
  Event DblClick{*this, "DblClick"};
  Event MouseDown{*this, "MouseDown"};
  Event MouseUp{*this, "MouseUp"};
};

struct TextBox : FocusControl {
  TextBox(const char* name, Control& parent, const Place& place, const Look& look = {},
          bool multiLine = false);

  const bool multiLine;
  Slot<std::string> Text;
  Event Change{*this, "Change"};
  Event Click{*this, "Click"};
  Event DblClick{*this, "DblClick"};
  Event MouseDown{*this, "MouseDown"};
  Event MouseUp{*this, "MouseUp"};
};

struct Button : FocusControl {
  Button(const char* name, Control& parent, const Place& place, const Look& look = {});

  Slot<std::string> Caption;
  Event Click{*this, "Click"};
  Event MouseDown{*this, "MouseDown"};
  Event MouseUp{*this, "MouseUp"};
};

struct OptionButton : FocusControl {
  OptionButton(const char* name, Control& parent, const Place& place, const Look& look = {});

  Slot<std::string> Caption;
  /// Setting it clears the other options of the same panel, which stay silent.
  Slot<bool> Value;
  Event Click{*this, "Click"};
  Event MouseDown{*this, "MouseDown"};
  Event MouseUp{*this, "MouseUp"};
};

/// Two arrows. ForeColor is the arrows' colour.
struct SpinButton : PlacedControl {
  SpinButton(const char* name, Control& parent, const Place& place, const Look& look = {});

  Event SpinDown{*this, "SpinDown"};
  Event SpinUp{*this, "SpinUp"};
};

struct Range {
  int min;
  int max;
  int value;
  int smallChange;
  int largeChange;
};

/// A scroll bar. Its Value is what was written, also beyond Min and Max, and a new end leaves it; the thumb
/// alone stays within the ends, and so does what a user does with it.
struct ScrollBar : PlacedControl {
  ScrollBar(const char* name, Control& parent, const Place& place, const Range& range, const Look& look = {});

  const int smallChange;
  const int largeChange;
  Slot<int> Min;
  Slot<int> Max;
  Slot<int> Value;
  Event Change{*this, "Change"};

  /// The nearest value between the ends; Min where Max lies below it.
  int WithinEnds(int value) const;
  /// The value at which the thumb stands.
  int Thumb() const { return WithinEnds(Value); }
};

/// Fires Timer every Interval milliseconds while it is enabled and its window is loaded.
struct TimerControl : Control {
  TimerControl(const char* name, Control& parent, int interval, bool enabled = false);

  Slot<int> Interval;
  Event Timer{*this, "Timer"};
};

/// An entry of a menu; the caption "-" is a separator, "(&X)" names its key.
struct Menu : Control {
  Menu(const char* name, Control& parent, const char* caption, const char* shortcut = "",
       const Look& look = {});

  const std::string shortcut;  // such as "Ctrl+S", empty for none
  Slot<std::string> Caption;
  Event Click{*this, "Click"};
};

/// A panel, and a drawing surface. Controls inside it are placed in the units of its scale.
struct Picture : PlacedControl {
  Picture(const char* name, Control& parent, const Place& place, const Look& look = {});

  /// Number of the picture resource shown, 0 for none.
  Slot<int> Image;
  Surface surface;
  Event Click{*this, "Click"};
  Event DblClick{*this, "DblClick"};
  Event MouseDown{*this, "MouseDown"};
  Event MouseUp{*this, "MouseUp"};
};

struct Line : Control {
  Line(const char* name, Control& parent, float x1, float y1, float x2, float y2, Colour colour = kWhite);

  Slot<float> X1;
  Slot<float> Y1;
  Slot<float> X2;
  Slot<float> Y2;
  Slot<Colour> ForeColor;
};

/// A dialog of the platform that a window owns: nothing to see of it in the window.
struct Dialog : Control {
  Dialog(const char* name, Control& parent);
};

}  // namespace veldrin
