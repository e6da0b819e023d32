#include "desktop/controls/label_widget.h"

#include "desktop/windows/placement.h"
#include "machine/painting/fitted_text.h"
#include "machine/painting/fonts.h"
#include "machine/painting/text_ends.h"

#include <QPainter>

namespace veldrin {

namespace {

constexpr int kMiddleGrey = 128;
constexpr QColor kOffOnDark(150, 150, 150);
constexpr QColor kOffOnPale(100, 100, 100);

}  // namespace

LabelWidget::LabelWidget(Label& label, Stage& stage, QWidget* parent)
    : ControlWidget(label, stage, parent), transparent_(label.look.transparent) {
  setTextFormat(Qt::PlainText);
  setAlignment(TextAlignment());
}

void LabelWidget::Take(std::string_view slot) {
  if (slot == "Caption") {
    setText(ToWidgetText(Record().Caption));
  } else {
    ControlWidget::Take(slot);
  }
}

Shown LabelWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.text = ToSlotText(text());
  return shown;
}

/// Text that is off is grey, pale enough or dark enough to read on what is behind it.
QColor LabelWidget::TextColour() const {
  if (isEnabled()) return palette().color(QPalette::WindowText);
  return qGray(palette().color(QPalette::Window).rgb()) < kMiddleGrey ? kOffOnDark : kOffOnPale;
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  if (!transparent_) painter.fillRect(rect(), palette().color(QPalette::Window));
  PaintBorder(painter);
  const double border = BorderWidth();
  // A pixel between text and edge, where the label is not as wide as its text on purpose.
  const double margin = border + stage_->zoom.Factor();
  painter.setPen(TextColour());
  const QRectF room = QRectF(rect()).adjusted(margin, border, -margin, -border);
  isWhole_ = DrawFitted(painter, room, text(), font(), alignment());
}

/// A text that is cut short is told in full where the pointer rests on it, before the hint.
bool LabelWidget::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return ControlWidget::event(event);
  return ShowHint(*event, *this, isWhole_ ? QString() : text());
}

}  // namespace veldrin
