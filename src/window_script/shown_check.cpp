#include "window_script/shown_check.h"

#include "desktop/controls/menu_view.h"
#include "desktop/windows/placement.h"
#include "machine/painting/fonts.h"
#include "machine/painting/text_ends.h"
#include "simulated/printed_values.h"

namespace veldrin {

namespace {

std::string RectText(const QRect& rect) {
  return std::to_string(rect.x()) + " " + std::to_string(rect.y()) + " " + std::to_string(rect.width()) +
         " " + std::to_string(rect.height());
}

/// The value of a slot, where the control has one of that name and type.
template <class T>
const T* ValueOf(const Control& control, std::string_view name) {
  const AnySlot* any = control.FindSlot(name);
  if (any == nullptr || !std::holds_alternative<Slot<T>*>(*any)) return nullptr;
  return &std::get<Slot<T>*>(*any)->get();
}

std::string Joined(const std::vector<std::string>& entries) {
  std::string text;
  for (const std::string& entry : entries) text += (text.empty() ? "" : ",") + entry;
  return text;
}

/// The cells of a grid, row by row.
std::vector<std::string> CellsOf(const Control& control) {
  const auto& grid = static_cast<const Grid&>(control);
  std::vector<std::string> cells;
  for (int row = 0; row < grid.Rows; ++row) {
    for (int column = 0; column < grid.Cols; ++column) cells.push_back(grid.Cell(row, column));
  }
  return cells;
}

std::string FontText(const QFont& font) {
  return font.family().toStdString() + " " + std::to_string(font.pixelSize()) + (font.bold() ? " bold" : "") +
         (font.italic() ? " italic" : "");
}

bool LooksAlike(const QFont& a, const QFont& b) {
  return a.family() == b.family() && a.pixelSize() == b.pixelSize() && a.bold() == b.bold() &&
         a.italic() == b.italic();
}

class Checker {
 public:
  Checker(const Control& control, std::vector<Mismatch>& found) : control_(control), found_(found) {}

  /// What is shown, if the widget shows it, against the slot, if the control has it.
  template <class T, class S>
  void Compare(const char* name, const std::optional<S>& shown) {
    if (!shown) return;
    const T* slot = ValueOf<T>(control_, name);
    if (slot != nullptr && !(*shown == *slot)) Tell(name, ValueText(*slot), ValueText(T(*shown)));
  }

  void CompareText(const char* name, const std::optional<std::string>& shown) {
    const std::string* slot = shown ? ValueOf<std::string>(control_, name) : nullptr;
    if (slot == nullptr) return;
    const std::string wanted = ToSlotText(ToWidgetText(*slot));
    if (*shown != wanted) Tell(name, wanted, *shown);
  }

  void CompareShown(const char* name, const std::string& wanted, const std::string& shown) {
    if (shown != wanted) Tell(name, wanted, shown);
  }

  void Tell(const std::string& name, const std::string& slot, const std::string& shown) {
    found_.push_back({control_.FullName() + "." + name, slot, shown});
  }

 private:
  const Control& control_;
  std::vector<Mismatch>& found_;
};

void CheckControl(const Control& control, const ControlView& view, const Stage& stage,
                  std::vector<Mismatch>& found) {
  const Shown shown = view.WhatShows();
  Checker checker(control, found);
  if (control.kind == ControlKind::Menu) {
    checker.CompareShown("Caption", ToSlotText(MenuText(static_cast<const Menu&>(control).Caption)),
                         *shown.text);
  } else {
    checker.CompareText("Caption", shown.text);
  }
  checker.CompareText("Text", shown.text);
  checker.CompareText("Drive", shown.text);
  checker.CompareText("Path", shown.path);
  checker.Compare<bool>("Visible", shown.visible);
  checker.Compare<bool>("Enabled", shown.enabled);
  checker.Compare<Colour>("ForeColor", shown.fore);
  checker.Compare<Colour>("BackColor", shown.back);
  checker.Compare<int>("ListIndex", shown.listIndex);
  if (shown.entries && *shown.entries != *EntriesOf(control)) {
    checker.Tell("List", Joined(*EntriesOf(control)), Joined(*shown.entries));
  }
  if (shown.cells) checker.CompareShown("Cell", Joined(CellsOf(control)), Joined(*shown.cells));
  if (shown.font) {
    const QFont wanted = FontFor(static_cast<const PlacedControl&>(control), stage.zoom.Factor());
    if (!LooksAlike(wanted, *shown.font)) checker.Tell("Font", FontText(wanted), FontText(*shown.font));
  }
  if (control.kind == ControlKind::OptionButton) checker.Compare<bool>("Value", shown.chosen);
  if (control.kind == ControlKind::ScrollBar) {
    const int thumb = static_cast<const ScrollBar&>(control).Thumb();
    if (shown.value != thumb) checker.Tell("Value", ValueText(thumb), ValueText(*shown.value));
  }
  if (shown.place) {
    const QRect wanted = PixelsInParent(control, stage.zoom);
    if (*shown.place != wanted) checker.Tell("place in pixels", RectText(wanted), RectText(*shown.place));
  }
}

/// Siblings with widgets, from the front to the back, in the stacking order of the view and of Qt.
void CheckOrder(const FormWidget& form, const Control& parent, const QWidget& around,
                std::vector<Mismatch>& found) {
  std::vector<const QWidget*> wanted;
  for (const Control* child : parent.children) {
    ControlView* const view = form.ViewOf(*child);
    if (view == nullptr || view->Widget() == nullptr) continue;
    wanted.push_back(view->Widget());
    CheckOrder(form, *child, *view->Widget(), found);
  }
  std::size_t place = wanted.size();
  for (const QObject* object : around.children()) {
    const auto* view = dynamic_cast<const ControlView*>(object);
    if (view == nullptr || view->Shows() == nullptr) continue;
    if (place == 0 || wanted[--place] != object) {
      found.push_back({view->Shows()->FullName() + ".ZOrder", std::to_string(view->Shows()->ZOrder()),
                       "another place among the widgets"});
      return;
    }
  }
  if (place > 0) {
    const Control& lost = *dynamic_cast<const ControlView*>(wanted[place - 1])->Shows();
    found.push_back({lost.FullName() + ".ZOrder", std::to_string(lost.ZOrder()), "not among the widgets"});
  }
}

void CheckWindow(FormWidget& form, const Stage& stage, std::vector<Mismatch>& found) {
  const Window& window = *form.Shows();
  Checker checker(window, found);
  checker.CompareText("Caption", std::optional<std::string>(form.Title()));
  checker.Compare<bool>("Visible", std::optional<bool>(form.isVisible()));
  const QSize wanted = form.ContentFor(ClientPixels(window, stage.zoom));
  const QSize shown = form.Client().size();
  if (shown != wanted) checker.Tell("size in pixels", RectText({{}, wanted}), RectText({{}, shown}));
  const auto* focused = dynamic_cast<const ControlView*>(form.focusWidget());
  const std::string focus = window.focus == nullptr ? "" : window.focus->IndexedName();
  const std::string widgetFocus =
      focused == nullptr || focused->Shows() == nullptr ? "" : focused->Shows()->IndexedName();
  if (form.isVisible() && focus != widgetFocus) checker.Tell("Focus", focus, widgetFocus);
}

}  // namespace

std::vector<Mismatch> DifferencesIn(FormWidget& form, const Stage& stage) {
  std::vector<Mismatch> found;
  CheckWindow(form, stage, found);
  for (const Control* control : form.Shows()->controls) {
    if (const ControlView* view = form.ViewOf(*control)) CheckControl(*control, *view, stage, found);
  }
  CheckOrder(form, *form.Shows(), form.Client(), found);
  return found;
}

}  // namespace veldrin
