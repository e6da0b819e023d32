#include "desktop/button_widget.h"

#include "desktop/fitted_text.h"
#include "desktop/text_ends.h"

#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>
#include <vector>

namespace veldrin {

namespace {

const QColor kOffText(110, 110, 110);
const QColor kRing(70, 70, 70);
const QColor kOffRing(140, 140, 140);

bool IsPressingKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Steps through options: 1 downward, -1 upward, 0 for other keys.
int StepOf(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Down || event.key() == Qt::Key_Right) return 1;
  if (event.key() == Qt::Key_Up || event.key() == Qt::Key_Left) return -1;
  return 0;
}

/// The option of the same panel that lies next below or above; null at the ends.
OptionButton* Neighbour(const OptionButton& option, int step) {
  std::vector<OptionButton*> options;
  for (Control* sibling : option.parent->children) {
    if (sibling->kind == ControlKind::OptionButton) options.push_back(static_cast<OptionButton*>(sibling));
  }
  std::sort(options.begin(), options.end(), [](const OptionButton* a, const OptionButton* b) {
    return a->Top.get() < b->Top.get() || (a->Top.get() == b->Top.get() && a->Left.get() < b->Left.get());
  });
  const auto place = std::find(options.begin(), options.end(), &option) - options.begin() + step;
  const bool inside = place >= 0 && place < static_cast<std::ptrdiff_t>(options.size());
  return inside ? options[static_cast<std::size_t>(place)] : nullptr;
}

}  // namespace

ButtonWidget::ButtonWidget(Button& button, Stage& stage, QWidget* parent)
    : ControlWidget(button, stage, parent) {
  setAutoDefault(false);
}

void ButtonWidget::Take(std::string_view slot) {
  if (slot == "Caption") {
    setText(ToWidgetText(static_cast<const Button&>(*control_).Caption));
    setAccessibleName(WithoutMarks(text()));
  } else {
    ControlWidget::Take(slot);
  }
}

Shown ButtonWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.text = ToSlotText(text());
  return shown;
}

void ButtonWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
  const double margin = 2 * stage_->zoom.Factor();
  QRectF room = QRectF(rect()).adjusted(margin, margin, -margin, -margin);
  if (isDown()) room.translate(1, 1);
  painter.setPen(isEnabled() ? palette().color(QPalette::ButtonText) : kOffText);
  DrawFitted(painter, room, WithoutMarks(text()), font(), Qt::AlignHCenter);
}

/// The keyboard does what the mouse does, events of the mouse included: some buttons act on those alone.
bool ButtonWidget::OwnKey(QKeyEvent& event) {
  if (!IsPressingKey(event)) return false;
  if (!event.isAutoRepeat()) Do([control = control_] { return user::Click(*control); });
  return true;
}

OptionWidget::OptionWidget(OptionButton& option, Stage& stage, QWidget* parent)
    : ControlWidget(option, stage, parent) {
  setAutoExclusive(false);
}

void OptionWidget::Take(std::string_view slot) {
  const auto& option = static_cast<const OptionButton&>(*control_);
  if (slot == "Caption") {
    setText(ToWidgetText(option.Caption));
  } else if (slot == "Value") {
    setChecked(option.Value);
  } else {
    ControlWidget::Take(slot);
  }
}

Shown OptionWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.text = ToSlotText(text());
  shown.chosen = isChecked();
  return shown;
}

void OptionWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  const double factor = stage_->zoom.Factor();
  const double size = std::min({12 * factor, width() - 2.0, height() - 2.0});
  const QRectF ring(1, (height() - size) / 2, size, size);
  painter.setPen(QPen(isEnabled() ? kRing : kOffRing, std::max(1.0, factor)));
  painter.setBrush(isEnabled() ? Qt::white : Qt::lightGray);
  painter.drawEllipse(ring);
  if (isChecked()) {
    const double inset = size * 0.28;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? Qt::black : Qt::darkGray);
    painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
  }
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  if (text().isEmpty()) return;
  painter.setPen(palette().color(QPalette::WindowText));
  DrawFitted(painter, QRectF(rect()).adjusted(size + 4 * factor, 0, -1, 0), WithoutMarks(text()), font(),
             Qt::AlignLeft);
}

bool OptionWidget::OwnKey(QKeyEvent& event) {
  const auto& option = static_cast<const OptionButton&>(*control_);
  if (IsPressingKey(event)) {
    if (!event.isAutoRepeat()) Do([control = control_] { return user::Click(*control); });
    return true;
  }
  const int step = StepOf(event);
  if (step == 0) return false;
  if (OptionButton* neighbour = Neighbour(option, step)) {
    Do([neighbour] { return user::Click(*neighbour); });
  }
  return true;
}

}  // namespace veldrin
