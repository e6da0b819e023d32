#include "desktop/controls/control_view.h"

#include "desktop/accessible/accessible_name.h"
#include "desktop/accessible/hint_words.h"
#include "desktop/controls/focus_edge.h"
#include "desktop/input/help_key.h"
#include "desktop/input/hint_key.h"
#include "desktop/input/keyboard.h"
#include "desktop/input/keys.h"
#include "desktop/input/pointer_gestures.h"
#include "desktop/input/reach.h"
#include "desktop/windows/placement.h"
#include "machine/painting/fonts.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QPalette>
#include <QToolTip>

namespace veldrin {

namespace {

bool IsPlaceSlot(std::string_view slot) {
  return slot == "Left" || slot == "Top" || slot == "Width" || slot == "Height";
}

/// Kinds that do not paint their focus themselves.
bool NeedsEdge(ControlKind kind) {
  return kind != ControlKind::Button && kind != ControlKind::OptionButton;
}

int ButtonNumber(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton) return kLeftButton;
  if (event.button() == Qt::RightButton) return kRightButton;
  return 0;
}

}  // namespace

void ControlView::TakeAll() {
  for (const AnySlot& slot : control_->slots) {
    Take(std::visit([](const auto* typed) { return typed->Name(); }, slot));
  }
}

QString ControlView::HintText() const {
  return control_ == nullptr ? QString() : HintOf(stage_->input.Served(), *control_);
}

QString ControlView::SpokenHint() const {
  return control_ == nullptr ? QString() : SpokenHintOf(stage_->input.Served(), *control_);
}

void PlacedView::Prepare(QWidget& widget) {
  const bool takesFocus = TakesFocus(*control_);
  // The program moves the focus at a click, and Tab goes through the controls in their own order.
  widget.setFocusPolicy(takesFocus ? Qt::TabFocus : Qt::NoFocus);
  // A click on a control that is off, or that has no events, is no click on what lies around it.
  widget.setAttribute(Qt::WA_NoMousePropagation);
  widget.setObjectName(QString::fromStdString(control_->FullName()));
  widget.setAccessibleName(AccessibleName(*control_));
}

void PlacedView::Take(std::string_view slot) {
  const Applying applying(*stage_);
  if (IsPlaceSlot(slot)) {
    TakePlace();
  } else if (slot == "BackColor" || slot == "ForeColor") {
    TakeColours();
  } else if (slot.starts_with("Font")) {
    TakeFont();
  } else if (slot == "Visible") {
    Widget()->setVisible(control_->Visible);
  } else if (slot == "Enabled") {
    Widget()->setEnabled(control_->Enabled);
  } else if (slot == "MousePointer") {
    const bool noDrop = Placed().MousePointer == kPointerNoDrop;
    Widget()->setCursor(noDrop ? Qt::ForbiddenCursor : Qt::ArrowCursor);
  }
}

void PlacedView::TakeAll() {
  const Applying applying(*stage_);
  TakePlace();
  TakeColours();
  TakeFont();
  for (const AnySlot& any : control_->slots) {
    const std::string_view slot = std::visit([](const auto* typed) { return typed->Name(); }, any);
    const bool taken =
        IsPlaceSlot(slot) || slot == "BackColor" || slot == "ForeColor" || slot.starts_with("Font");
    const bool atRest = slot == "MousePointer" && Placed().MousePointer == kPointerDefault;
    if (!taken && !atRest) Take(slot);
  }
  TakeContent();
}

void PlacedView::Rescale() {
  const Applying applying(*stage_);
  TakePlace();
  TakeFont();
}

void PlacedView::TakePlace() {
  Widget()->setGeometry(PixelsInParent(*control_, stage_->zoom));
}

void PlacedView::TakeColours() {
  QPalette palette = Widget()->palette();
  const QColor fore = ToQColor(Placed().ForeColor);
  const QColor back = ToQColor(Placed().BackColor);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, fore);
  }
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) palette.setColor(role, back);
  Widget()->setPalette(palette);
}

void PlacedView::TakeFont() {
  Widget()->setFont(FontFor(Placed(), stage_->zoom.Factor()));
}

Shown PlacedView::WhatShows() const {
  const QWidget& widget = ConstWidget();
  Shown shown;
  shown.visible = !widget.isHidden();
  shown.enabled = widget.isEnabledTo(widget.parentWidget());
  shown.fore = ToColour(widget.palette().color(QPalette::Active, QPalette::WindowText));
  shown.back = ToColour(widget.palette().color(QPalette::Active, QPalette::Window));
  shown.place = widget.geometry();
  shown.font = widget.font();
  return shown;
}

/// Widgets that Qt tells of itself are told of by their descriptions; the others are asked.
void PlacedView::TakeHint() {
  if (control_ == nullptr || !TakesFocus(*control_)) return;
  const QString hint = HintText();
  QWidget& widget = *Widget();
  if (widget.accessibleDescription() == hint) return;
  widget.setAccessibleDescription(hint);
  widget.setWhatsThis(hint);
}

bool PlacedView::ShowHint(const QEvent& event, QWidget& over, const QString& cutText) const {
  const auto& help = static_cast<const QHelpEvent&>(event);
  const QString hint = HintText();
  const bool both = !cutText.isEmpty() && !hint.isEmpty();
  const QString text = cutText + (both ? QStringLiteral("\n") : QString()) + hint;
  QToolTip::showText(help.globalPos(), text, &over);
  return !text.isEmpty();
}

void PlacedView::MarkFocus(const QEvent& event) {
  if (control_ == nullptr || !NeedsEdge(control_->kind)) return;
  switch (event.type()) {
    case QEvent::FocusIn:
      if (edge_ == nullptr) edge_ = new FocusEdge(*Widget(), stage_->zoom);
      edge_->Cover();
      break;
    case QEvent::FocusOut:
      if (edge_ != nullptr) edge_->hide();
      break;
    case QEvent::Resize:
      if (edge_ != nullptr && edge_->isVisible()) edge_->Cover();
      break;
    default:
      break;
  }
}

void PlacedView::FocusCame() {
  if (control_ == nullptr || stage_->applying > 0 || control_->window.focus == control_) return;
  Do([control = control_] { return user::Focus(*control); });
}

void PlacedView::ClickedOtherwise() {
  if (control_ != nullptr) Do([control = control_] { return user::Click(*control); });
}

Qt::Alignment PlacedView::TextAlignment() const {
  switch (control_->look.align) {
    case Align::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case Align::Centre:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
      return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

double PlacedView::BorderWidth() const {
  return control_ == nullptr ? 0 : BorderPixels(*control_, stage_->zoom);
}

void PlacedView::PaintBorder(QPainter& painter) const {
  const double width = BorderWidth();
  if (width == 0) return;
  painter.setPen(QPen(QColor(Qt::darkGray), width));
  painter.drawRect(QRectF(ConstWidget().rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

bool PlacedView::Pressed(const QMouseEvent& event) {
  const int button = ButtonNumber(event);
  if (control_ == nullptr || button == 0) return true;
  const bool done = Do([&, control = control_] { return PressPointer(*control, button); });
  pressed_.setFlag(event.button(), done);
  return done && Widget()->isVisible() && Widget()->isEnabled();
}

bool PlacedView::PressedTwice(const QMouseEvent& event) {
  pressed_.setFlag(event.button(), false);
  if (control_ == nullptr) return true;
  if (event.button() == Qt::LeftButton) {
    if (OpenAt(event.position().toPoint())) return false;
    if (control_->FindEvent("DblClick") != nullptr && ClicksItself()) {
      Do([control = control_] { return DoublePress(*control); });
      return true;
    }
  }
  // Two quick clicks on a button are two clicks.
  return Pressed(event);
}

void PlacedView::Released(const QMouseEvent& event) {
  const int button = ButtonNumber(event);
  if (button == 0 || !pressed_.testFlag(event.button())) return;
  pressed_.setFlag(event.button(), false);
  if (control_ == nullptr) return;
  const QPoint point = event.position().toPoint();
  const bool inside = Widget()->rect().contains(point);
  if (ClicksItself()) {
    Do([&, control = control_] { return ReleasePointer(*control, button, inside); });
  } else if (inside && button == kLeftButton) {
    PickAt(point);
  }
}

bool PlacedView::KeyPressed(QKeyEvent& event) {
  if (control_ == nullptr) return true;
  Control& control = *control_;
  if (!stage_->keysAlone && ServeReached(*stage_, control.window, *Widget(), event)) return true;
  if (ServeTab(*stage_, control.window, event)) return true;
  const int number = KeyNumber(event);
  if (number != 0 && control.FindEvent("KeyDown") != nullptr) {
    Do([&] { return user::PressKey(control, number); });
    if (control_ == nullptr) return true;
    if (control.window.focus != &control || !user::Reachable(control)) return true;
  }
  if (stage_->keysAlone) return true;
  return OwnKey(event) || ServeEscape(*stage_, control.window, event) ||
         ServeReach(control.window, *Widget(), event) ||
         ServeHelp(*stage_, control.window, *Widget(), event) ||
         ServeHint(*stage_, control.window, *Widget(), event);
}

bool PlacedView::HandOnWheel(QEvent& event) {
  QCoreApplication::sendEvent(Widget()->window(), &event);
  return event.isAccepted();
}

}  // namespace veldrin
