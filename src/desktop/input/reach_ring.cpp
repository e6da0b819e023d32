#include "desktop/input/reach_ring.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace veldrin {

namespace {

// A pale line between two dark ones is seen on whatever lies below.
constexpr QColor kLine(255, 200, 0);
constexpr QColor kEdge(0, 0, 0);
constexpr int kLines = 3;

void TellFocus(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&widget, QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

ReachRing::ReachRing(ClientArea& area, const Zoom& zoom) : QWidget(&area), area_(&area), zoom_(&zoom) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void ReachRing::Surround(QWidget& widget) {
  if (around_ == nullptr) QApplication::instance()->installEventFilter(this);
  around_ = &widget;
  Follow();
  show();
  raise();
  TellFocus(widget);
}

void ReachRing::LetGo() {
  QApplication::instance()->removeEventFilter(this);
  around_ = nullptr;
  hide();
  if (QWidget* focused = window()->focusWidget()) TellFocus(*focused);
}

void ReachRing::StayInFront() {
  if (around_ == nullptr) return;
  setVisible(area_->IsUncovered(*around_));
  raise();
}

/// Pixels of one line.
int ReachRing::Line() const {
  return std::max(1, qRound(zoom_->Factor()));
}

void ReachRing::Follow() {
  const int width = kLines * Line();
  setGeometry(area_->PlaceOf(*around_).adjusted(-width, -width, width, width));
  update();
}

bool ReachRing::eventFilter(QObject* watched, QEvent* event) {
  if (around_ == nullptr || !watched->isWidgetType()) return false;
  const auto* widget = static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
      if (widget == around_ || (widget != area_ && widget->isAncestorOf(around_))) Follow();
      break;
    case QEvent::Hide:
      if (widget == around_) LetGo();
      break;
    case QEvent::EnabledChange:
      if (widget == around_ && !widget->isEnabled()) LetGo();
      break;
    case QEvent::MouseButtonPress:
      if (widget->window() == window()) LetGo();
      break;
    default:
      break;
  }
  return false;
}

void ReachRing::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const auto inside = [this](int lines) {
    const int inset = lines * Line();
    return rect().adjusted(inset, inset, -inset, -inset);
  };
  painter.setClipRegion(QRegion(rect()) - inside(kLines));
  painter.fillRect(rect(), kEdge);
  painter.fillRect(inside(1), kLine);
  painter.fillRect(inside(2), kEdge);
}

}  // namespace veldrin
