#include "desktop/controls/view_factory.h"

#include "desktop/controls/button_widget.h"
#include "desktop/controls/combo_widget.h"
#include "desktop/controls/grid_widget.h"
#include "desktop/controls/label_widget.h"
#include "desktop/controls/line_widget.h"
#include "desktop/controls/list_widget.h"
#include "desktop/controls/menu_view.h"
#include "desktop/controls/picture_widget.h"
#include "desktop/controls/scroll_bar_widget.h"
#include "desktop/controls/spin_widget.h"
#include "desktop/controls/text_box_widget.h"
#include "desktop/controls/timer_view.h"

namespace veldrin {

namespace {

/// A view with a widget, which Qt deletes with its parent.
template <class Widget, class Record>
NewView Placed(Control& control, Stage& stage, QWidget* parent) {
  return {new Widget(static_cast<Record&>(control), stage, parent), nullptr};
}

template <class View, class Record>
NewView Owned(Control& control, Stage& stage) {
  auto view = std::make_unique<View>(static_cast<Record&>(control), stage);
  ControlView* const made = view.get();
  return {made, std::move(view)};
}

NewView MakeTextBox(Control& control, Stage& stage, QWidget* parent) {
  const bool multiLine = static_cast<const TextBox&>(control).multiLine;
  return multiLine ? Placed<TextAreaWidget, TextBox>(control, stage, parent)
                   : Placed<LineBoxWidget, TextBox>(control, stage, parent);
}

}  // namespace

NewView MakeView(Control& control, Stage& stage, QWidget* parent) {
  switch (control.kind) {
    case ControlKind::Label:
      return Placed<LabelWidget, Label>(control, stage, parent);
    case ControlKind::TextBox:
      return MakeTextBox(control, stage, parent);
    case ControlKind::Button:
      return Placed<ButtonWidget, Button>(control, stage, parent);
    case ControlKind::OptionButton:
      return Placed<OptionWidget, OptionButton>(control, stage, parent);
    case ControlKind::SpinButton:
      return Placed<SpinWidget, SpinButton>(control, stage, parent);
    case ControlKind::ScrollBar:
      return Placed<ScrollBarWidget, ScrollBar>(control, stage, parent);
    case ControlKind::Picture:
      return Placed<PictureWidget, Picture>(control, stage, parent);
    case ControlKind::Line:
      return Placed<LineWidget, Line>(control, stage, parent);
    case ControlKind::Grid:
      return Placed<GridWidget, Grid>(control, stage, parent);
    case ControlKind::ComboBox:
    case ControlKind::DriveBox:
      return Placed<ComboWidget, Control>(control, stage, parent);
    case ControlKind::FolderBox:
      return Placed<FolderListWidget, FolderBox>(control, stage, parent);
    case ControlKind::FileBox:
      return Placed<FileListWidget, FileBox>(control, stage, parent);
    case ControlKind::Timer:
      return Owned<TimerView, TimerControl>(control, stage);
    case ControlKind::Menu:
      return Owned<MenuView, Menu>(control, stage);
    case ControlKind::Window:
    case ControlKind::Dialog:
      break;
  }
  return {};
}

}  // namespace veldrin
