#include "desktop/controls/spin_widget.h"

#include "desktop/accessible/accessible_name.h"
#include "desktop/input/wheel.h"

#include <QAccessible>
#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionButton>

#include <algorithm>

namespace veldrin {

namespace {

constexpr int kFirstRepeat = 400;  // ms
constexpr int kNextRepeat = 70;
constexpr QColor kOffArrow(150, 150, 150);

}  // namespace

SpinWidget::SpinWidget(SpinButton& spin, Stage& stage, QWidget* parent) : ControlWidget(spin, stage, parent) {
  repeat_.setSingleShot(true);
  connect(&repeat_, &QTimer::timeout, this, [this] {
    if (!held_) return;
    if (inside_) Turn(up_);
    if (held_) repeat_.start(kNextRepeat);
  });
}

bool SpinWidget::IsSideBySide() const {
  return width() > height() * 3 / 2;
}

QRect SpinWidget::ArrowRect(bool up) const {
  if (IsSideBySide()) {
    const int middle = width() / 2;
    return up ? QRect(middle, 0, width() - middle, height()) : QRect(0, 0, middle, height());
  }
  const int middle = height() / 2;
  return up ? QRect(0, 0, width(), middle) : QRect(0, middle, width(), height() - middle);
}

/// Its handlers may switch the button off, or take it away.
void SpinWidget::Turn(bool up) {
  Control* const control = control_;
  if (control == nullptr ||
      !Do([control, up] { return user::Spin(static_cast<SpinButton&>(*control), up); })) {
    Stop();
  }
  TellTurned();
}

/// Tells screen readers what is turned to.
void SpinWidget::TellTurned() {
  if (control_ == nullptr || !QAccessible::isActive()) return;
  QAccessibleValueChangeEvent event(this, AccessibleValue(*control_));
  QAccessible::updateAccessibility(&event);
}

void SpinWidget::Stop() {
  held_ = false;
  repeat_.stop();
  update();
}

void SpinWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = true;
  inside_ = true;
  up_ = ArrowRect(true).contains(event->position().toPoint());
  repeat_.start(kFirstRepeat);
  update();
  Turn(up_);
}

void SpinWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void SpinWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Stop();
}

void SpinWidget::mouseMoveEvent(QMouseEvent* event) {
  inside_ = ArrowRect(up_).contains(event->position().toPoint());
}

void SpinWidget::wheelEvent(QWheelEvent* event) {
  event->accept();
  const int turns = WheelTurns(*event, wheel_);
  for (int i = 0; i < std::abs(turns) && control_ != nullptr; ++i) Turn(turns > 0);
}

void SpinWidget::hideEvent(QHideEvent* event) {
  Stop();
  ControlWidget::hideEvent(event);
}

void SpinWidget::changeEvent(QEvent* event) {
  if (event->type() == QEvent::EnabledChange && !isEnabled()) Stop();
  ControlWidget::changeEvent(event);
}

/// The control's own colour, but never a dark one on a button that is off.
QColor SpinWidget::ArrowColour() const {
  const QColor own = palette().color(QPalette::Active, QPalette::ButtonText);
  return isEnabled() || qGray(own.rgb()) > qGray(kOffArrow.rgb()) ? own : kOffArrow;
}

void SpinWidget::PaintArrow(QPainter& painter, bool up) const {
  const QRect half = ArrowRect(up);
  QStyleOptionButton face;
  face.initFrom(this);
  face.rect = half;
  face.state.setFlag(QStyle::State_HasFocus, false);
  face.state.setFlag(held_ && up == up_ ? QStyle::State_Sunken : QStyle::State_Raised);
  style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &face, &painter, this);

  const double size = std::min({half.width() * 0.5, half.height() * 0.5, 7 * stage_->zoom.Factor()});
  const QPointF middle = QRectF(half).center();
  const double away = up ? 1 : -1;  // the way that the arrow points
  QPolygonF arrow;
  if (IsSideBySide()) {
    arrow << QPointF(size * away / 2, 0) << QPointF(-size * away / 2, -size * 0.7)
          << QPointF(-size * away / 2, size * 0.7);
  } else {
    arrow << QPointF(0, -size * away / 2) << QPointF(-size * 0.7, size * away / 2)
          << QPointF(size * 0.7, size * away / 2);
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ArrowColour());
  painter.drawPolygon(arrow.translated(middle));
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void SpinWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  PaintArrow(painter, true);
  PaintArrow(painter, false);
}

}  // namespace veldrin
