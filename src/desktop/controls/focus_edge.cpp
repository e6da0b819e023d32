#include "desktop/controls/focus_edge.h"

#include <QPainter>

#include <algorithm>

namespace veldrin {

namespace {

constexpr double kWidth = 2;  // pixels of the program

}  // namespace

FocusEdge::FocusEdge(QWidget& around, const Zoom& zoom) : QFocusFrame(&around), zoom_(&zoom) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void FocusEdge::Cover() {
  setGeometry(parentWidget()->rect());
  raise();
  show();
}

void FocusEdge::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int width = std::max(2, qRound(kWidth * zoom_->Factor()));
  painter.setClipRegion(QRegion(rect()) - rect().adjusted(width, width, -width, -width));
  painter.fillRect(rect(), palette().color(QPalette::Highlight));
}

}  // namespace veldrin
