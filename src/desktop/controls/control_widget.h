// A Qt widget that shows a control and hands what the user does with it to the program.
#pragma once

#include "desktop/controls/control_view.h"

#include <QEvent>

namespace veldrin {

/// Gestures go to the program in the order told in view/user_input.h. A press reaches the program before the
/// widget, so that the focus has moved when the widget acts on it; the way up reaches the widget first, so
/// that a button does not look pressed while its handler runs.
template <class Base>
class ControlWidget : public Base, public PlacedView {
 public:
  ControlWidget(Control& control, Stage& stage, QWidget* parent) : Base(parent), PlacedView(control, stage) {
    Prepare(*this);
  }

  QWidget* Widget() override { return this; }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::KeyPress && KeyPressed(static_cast<QKeyEvent&>(*event))) {
      event->accept();
      return true;
    }
    if (event->type() == QEvent::ToolTip) return ShowHint(*event, *this);
    // Qt tells a widget that is off of no wheel.
    if (event->type() == QEvent::Wheel && !this->isEnabled()) return HandOnWheel(*event);
    const bool served = Base::event(event);
    MarkFocus(*event);
    if (event->type() == QEvent::FocusIn) FocusCame();
    return served;
  }

  /// Areas with a viewport get the wheel from there and by no event of their own.
  void wheelEvent(QWheelEvent* event) override {
    Base::wheelEvent(event);
    if (!event->isAccepted()) HandOnWheel(*event);
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (inDoubleClick_ || Pressed(*event)) Base::mousePressEvent(event);
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (!PressedTwice(*event)) return;
    // Many widgets take it for one more press.
    inDoubleClick_ = true;
    Base::mouseDoubleClickEvent(event);
    inDoubleClick_ = false;
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    Base::mouseReleaseEvent(event);
    Released(*event);
  }

 private:
  bool inDoubleClick_ = false;
};

}  // namespace veldrin
