// What every control of a window has: a kind, a name, a place in the tree and in the stacking order, slots
// and events. The kinds themselves stand in controls.h, windows in window.h.
//
// Front ends and scripts find everything by walking: window.controls in the order of the screen, and a
// control's slots and events by name.
#pragma once

#include "view/event.h"
#include "view/slot.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

struct Window;

enum class ControlKind {
  Window,
  Label,
  TextBox,
  Button,
  OptionButton,
  SpinButton,
  ScrollBar,
  Timer,
  Menu,
  Picture,
  Line,
  Grid,
  ComboBox,
  DriveBox,
  FolderBox,
  FileBox,
  Dialog,
};

/// Left, top, width and height in the units of the parent: twips unless it has a scale of its own.
struct Place {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

enum class Align { Left, Right, Centre };

/// What the description of a window says of a control beside its place.
struct Look {
  const char* caption = "";  // the text of a box
  // The caption that takes its place in the other language: in English where it is in Japanese, and in
  // Japanese where it is in English.
  const char* english = "";
  const char* japanese = "";
  Colour fore = kBlack;
  Colour back = kLightGrey;
  float fontSize = 9;
  bool fontBold = false;
  Align align = Align::Left;
  bool border = false;
  bool transparent = false;  // a label that shows what is behind it
  bool visible = true;
  bool enabled = true;
  const char* spoken = "";  // what a screen reader says of it, where a picture tells those who see
};

struct Control {
  Control(ControlKind kind, const char* name, Control& parent, const Look& look);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const ControlKind kind;
  const std::string name;
  /// Subscript in its control array; kNoIndex outside arrays.
  int index = kNoIndex;
  /// The panel, menu or window around it; a window is its own parent's end: null.
  Control* const parent;
  Window& window;
  const Look look;

  /// The controls inside, from the front of the stacking order to its back. Menus keep the order of the
  /// screen.
  std::vector<Control*> children;
  std::vector<AnySlot> slots;
  std::vector<Event*> events;

  Slot<bool> Visible;
  Slot<bool> Enabled;

  /// Puts the control in front of its siblings.
  void BringToFront();
  /// Place in the stacking order among its siblings, 0 in front.
  int ZOrder() const;

  /// "Label9(3)" for an element of an array, else the name.
  std::string IndexedName() const;
  /// "Form2.Label9(3)".
  std::string FullName() const;

  /// The event or slot of this name; null when the kind has none.
  Event* FindEvent(std::string_view eventName) const;
  const AnySlot* FindSlot(std::string_view slotName) const;

  static constexpr int kNoIndex = -1;

 protected:
  /// For windows, which have no parent.
  Control(const char* name, const Look& look);

  template <class... Slots>
  void Have(Slots&... some) {
    (slots.push_back(&some), ...);
  }
};

/// A control whose kind is known.
template <class Kind>
Kind& As(Control& control) {
  return static_cast<Kind&>(control);
}

/// Whether the control and everything around it inside its window is visible and enabled.
bool IsUsable(const Control& control);

/// Whether a control of this kind can have the focus.
bool TakesFocus(const Control& control);

/// Moves the focus of the control's window to it: LostFocus of the one that had it, then GotFocus. Does
/// nothing where the control cannot have it or has it already.
void SetFocus(Control& control);

}  // namespace veldrin
