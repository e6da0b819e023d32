#include "desktop/input/reach.h"

#include "desktop/controls/scroll_bar_widget.h"
#include "desktop/controls/spin_widget.h"
#include "desktop/input/keys.h"
#include "desktop/windows/form_widget.h"
#include "view/user_input.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace veldrin {

namespace {

/// How many times as high as the control with the focus a control of its row may be.
constexpr int kRowHeights = 2;

bool IsHeadOfColumn(const Control& control) {
  return control.kind == ControlKind::Label && control.index == 0;
}

// ---- The widgets of a window ----

/// The window around a widget; null for a window of another kind.
FormWidget* FormAround(const QWidget& inside) {
  return dynamic_cast<FormWidget*>(inside.window());
}

/// What a window has in the order of the screen, as far as the user could act on it now.
class Reachables {
 public:
  Reachables(const Window& window, FormWidget& form) : area_(form.Client()) {
    if (window.focus != nullptr) focused_ = WidgetOf(form, *window.focus);
    for (const Control* control : window.controls) {
      if (!OnlyForTheMouse(*control) || !user::Reachable(*control)) continue;
      QWidget* const widget = WidgetOf(form, *control);
      if (widget != nullptr && area_.IsUncovered(*widget)) widgets_.push_back(widget);
    }
  }

  /// The one behind or before `now`; null past the ends.
  QWidget* Neighbour(const QWidget& now, bool forward) const {
    const auto place = std::find(widgets_.begin(), widgets_.end(), &now);
    if (place == widgets_.end() || (forward ? place + 1 == widgets_.end() : place == widgets_.begin())) {
      return nullptr;
    }
    return forward ? *(place + 1) : *(place - 1);
  }

  /// Where the way begins: to the right in the row of the focus, else with the first one; the way back begins
  /// with the last. Null where there is none.
  QWidget* Start(bool forward) const {
    if (widgets_.empty()) return nullptr;
    if (!forward) return widgets_.back();
    QWidget* const inRow = focused_ == nullptr ? nullptr : InRowOf(area_.PlaceOf(*focused_));
    return inRow != nullptr ? inRow : widgets_.front();
  }

 private:
  static QWidget* WidgetOf(const FormWidget& form, const Control& control) {
    ControlView* const view = form.ViewOf(control);
    return view == nullptr ? nullptr : view->Widget();
  }

  QWidget* InRowOf(const QRect& row) const {
    QWidget* nearest = nullptr;
    int least = 0;
    for (QWidget* widget : widgets_) {
      const QRect place = area_.PlaceOf(*widget);
      const int middle = row.center().y();
      const bool inRow = place.top() <= middle && middle <= place.bottom() &&
                         place.height() <= kRowHeights * row.height() && place.left() > row.right();
      if (!inRow || (nearest != nullptr && place.left() >= least)) continue;
      nearest = widget;
      least = place.left();
    }
    return nearest;
  }

  const ClientArea& area_;
  QWidget* focused_ = nullptr;
  std::vector<QWidget*> widgets_;
};

// ---- Keys ----

/// Keys that something which can be reached has a use for.
bool IsWorking(const QKeyEvent& event) {
  if (IsRightClick(event)) return true;
  if (!IsUnmodified(event)) return false;
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return true;
    default:
      return false;
  }
}

/// Keys that may be the first half of another one, that ask about what is reached, and those of menus and of
/// the window.
bool IsOfOthers(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return true;
  switch (event.key()) {
    case Qt::Key_F1:
    case Qt::Key_F6:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
      return true;
    default:
      return false;
  }
}

void WorkSpin(SpinWidget& spin, int key) {
  if (key == Qt::Key_Up || key == Qt::Key_Right) spin.Turn(true);
  if (key == Qt::Key_Down || key == Qt::Key_Left) spin.Turn(false);
}

void WorkScrollBar(ScrollBarWidget& bar, int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Right:
      return bar.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Down:
    case Qt::Key_Left:
      return bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_PageUp:
      return bar.triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_PageDown:
      return bar.triggerAction(QAbstractSlider::SliderPageStepSub);
    case Qt::Key_Home:
      return bar.triggerAction(QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
      return bar.triggerAction(QAbstractSlider::SliderToMaximum);
    default:
      return;
  }
}

void WorkClicks(Stage& stage, Control& control, const QKeyEvent& event) {
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (event.isAutoRepeat()) return;
  if (IsRightClick(event)) {
    stage.input.Do([&] { return user::Click(control, kRightButton); });
  } else if (enter && IsHandled(control, "DblClick")) {
    stage.input.Do([&] { return user::DoubleClick(control); });
  } else if (enter || event.key() == Qt::Key_Space) {
    stage.input.Do([&] { return user::Click(control); });
  }
}

void Work(Stage& stage, QWidget& widget, Control& control, const QKeyEvent& event) {
  if (control.kind == ControlKind::SpinButton) {
    WorkSpin(dynamic_cast<SpinWidget&>(widget), event.key());
  } else if (control.kind == ControlKind::ScrollBar) {
    WorkScrollBar(dynamic_cast<ScrollBarWidget&>(widget), event.key());
  } else {
    WorkClicks(stage, control, event);
  }
}

bool IsListOpen(const Window& window) {
  return window.focus != nullptr && window.focus->kind == ControlKind::Grid;
}

}  // namespace

bool IsHandled(const Control& control, std::string_view event) {
  const Event* found = control.FindEvent(event);
  return found != nullptr && found->Claims() > 0;
}

bool AnswersClicks(const Control& control) {
  if (control.kind != ControlKind::Label && control.kind != ControlKind::Picture) return false;
  if (IsHeadOfColumn(control)) return false;
  return IsHandled(control, "Click") || IsHandled(control, "DblClick") || IsHandled(control, "MouseDown") ||
         IsHandled(control, "MouseUp");
}

bool OnlyForTheMouse(const Control& control) {
  return control.kind == ControlKind::SpinButton || control.kind == ControlKind::ScrollBar ||
         AnswersClicks(control);
}

Control* ReachedIn(const QWidget& inside) {
  FormWidget* const form = FormAround(inside);
  auto* view = form == nullptr ? nullptr : dynamic_cast<ControlView*>(form->Ring().Around());
  return view == nullptr ? nullptr : view->Shows();
}

namespace {

/// A key for the button of the message strip that is reached. Any but those that press it let go.
bool ServeStrip(MessageStrip& strip, const QKeyEvent& event) {
  const bool presses =
      event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (presses && IsUnmodified(event)) {
    if (!event.isAutoRepeat()) strip.PressReached();
    return true;
  }
  strip.LetGo();
  return event.key() == Qt::Key_Escape;
}

MessageStrip* ReachedStripIn(const QWidget& inside) {
  FormWidget* const form = FormAround(inside);
  MessageStrip* const strip = form == nullptr ? nullptr : form->Strip();
  return strip == nullptr || strip->Reached() == nullptr ? nullptr : strip;
}

/// F6 past the ends of the controls. False where the strip has nothing to reach.
bool ReachStrip(FormWidget& form, bool forward) {
  MessageStrip* const strip = form.Strip();
  return strip != nullptr && (forward ? strip->ReachFirst() : strip->ReachLast());
}

}  // namespace

bool ReachesStrip(const QWidget& inside) {
  return ReachedStripIn(inside) != nullptr;
}

bool ServeReached(Stage& stage, const Window& window, const QWidget& inside, const QKeyEvent& event) {
  if (IsListOpen(window) || IsOfOthers(event)) return false;
  if (MessageStrip* strip = ReachedStripIn(inside)) return ServeStrip(*strip, event);
  Control* const control = ReachedIn(inside);
  if (control == nullptr) return false;
  FormWidget& form = *FormAround(inside);
  QWidget& reached = *form.Ring().Around();
  const bool usable = user::Reachable(*control) && form.Client().IsUncovered(reached);
  if (usable && IsWorking(event)) {
    Work(stage, reached, *control, event);
    return true;
  }
  form.Ring().LetGo();
  return usable && event.key() == Qt::Key_Escape;
}

bool ServeReach(const Window& window, const QWidget& inside, const QKeyEvent& event) {
  if (event.key() != Qt::Key_F6 || (event.modifiers() & ~Qt::ShiftModifier) != 0) return false;
  if (IsListOpen(window)) return true;
  FormWidget* const form = FormAround(inside);
  if (form == nullptr) return false;
  ReachRing& ring = form->Ring();
  const bool forward = event.modifiers() == Qt::NoModifier;
  const QWidget* now = ring.Around();
  const Reachables all(window, *form);
  QWidget* next = nullptr;
  if (MessageStrip* strip = ReachedStripIn(inside)) {
    // Behind the last control stands the strip; behind the strip nothing.
    if (strip->ReachNeighbour(forward) || forward) return true;
    next = all.Start(false);
    if (next == nullptr) return true;
  } else {
    const bool entersStrip = now == nullptr && !forward && ReachStrip(*form, false);
    if (entersStrip) return true;
    next = now == nullptr ? all.Start(forward) : all.Neighbour(*now, forward);
  }
  if (next == nullptr) {
    if (now != nullptr) ring.LetGo();
    const bool leavesControls = forward && ReachStrip(*form, true);
    return now != nullptr || leavesControls;
  }
  ring.Surround(*next);
  form->Reveal(next);
  return true;
}

}  // namespace veldrin
