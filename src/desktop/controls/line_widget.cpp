#include "desktop/controls/line_widget.h"

#include "desktop/windows/placement.h"
#include "machine/painting/fonts.h"

#include <QPainter>

namespace veldrin {

LineWidget::LineWidget(Line& line, Stage& stage, QWidget* parent)
    : QWidget(parent), ControlView(line, stage) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void LineWidget::Take(std::string_view slot) {
  if (slot == "Visible") {
    setVisible(control_->Visible);
  } else if (slot == "Enabled") {
    setEnabled(control_->Enabled);
  } else if (slot == "ForeColor") {
    colour_ = ToQColor(Record().ForeColor);
    update();
  } else {
    TakeEnds();
  }
}

void LineWidget::TakeAll() {
  TakeEnds();
  Take("ForeColor");
  Take("Visible");
}

void LineWidget::Rescale() {
  TakeEnds();
}

void LineWidget::TakeEnds() {
  falls_ = (Record().X1 <= Record().X2) == (Record().Y1 <= Record().Y2);
  setGeometry(PixelsInParent(*control_, stage_->zoom));
  update();
}

Shown LineWidget::WhatShows() const {
  Shown shown;
  shown.visible = !isHidden();
  shown.fore = ToColour(colour_);
  shown.place = geometry();
  return shown;
}

void LineWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const int thickness = LineWidth(stage_->zoom);
  if (width() <= thickness || height() <= thickness) {
    painter.fillRect(rect(), colour_);
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour_, thickness));
  if (falls_) {
    painter.drawLine(rect().topLeft(), rect().bottomRight());
  } else {
    painter.drawLine(rect().bottomLeft(), rect().topRight());
  }
}

}  // namespace veldrin
