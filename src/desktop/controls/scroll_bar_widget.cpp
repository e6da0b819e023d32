#include "desktop/controls/scroll_bar_widget.h"

#include "desktop/input/wheel.h"

#include <QAccessible>
#include <QPalette>

#include <algorithm>

namespace veldrin {

namespace {

constexpr double kOffArrows = 0.2;
constexpr double kOffThumb = 0.35;

/// The colour that is this part of the way from one to another.
QColor Between(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](double a, double b) { return qRound(a + (b - a) * part); };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

}  // namespace

ScrollBarWidget::ScrollBarWidget(ScrollBar& bar, Stage& stage, QWidget* parent)
    : ControlWidget(bar, stage, parent) {
  setOrientation(bar.Width.get() >= bar.Height.get() ? Qt::Horizontal : Qt::Vertical);
  setSingleStep(bar.smallChange);
  setPageStep(bar.largeChange);
  connect(this, &QScrollBar::valueChanged, this, [this](int value) {
    if (control_ == nullptr || stage_->applying > 0) return;
    Do([&, control = control_] { return user::ScrollTo(static_cast<ScrollBar&>(*control), value); });
    if (control_ != nullptr) Take("Value");
  });
}

void ScrollBarWidget::Take(std::string_view slot) {
  const auto& bar = static_cast<const ScrollBar&>(*control_);
  if (slot == "Min" || slot == "Max" || slot == "Value") {
    const Applying applying(*stage_);
    // A value beyond the ends leaves the thumb at the end, from where the user's next move begins.
    setRange(bar.Min, std::max(bar.Min.get(), bar.Max.get()));
    setValue(bar.Value);
    if (bar.Value != value()) TellBeyondEnds();
  } else {
    ControlWidget::Take(slot);
  }
}

/// Screen readers hear of a moved thumb by Qt.
void ScrollBarWidget::TellBeyondEnds() {
  QAccessibleValueChangeEvent changed(this, static_cast<const ScrollBar&>(*control_).Value.get());
  QAccessible::updateAccessibility(&changed);
}

/// A bar that is off is paler, its arrows most of all.
void ScrollBarWidget::TakeColours() {
  ControlWidget::TakeColours();
  QPalette colours = palette();
  const QColor back = colours.color(QPalette::Active, QPalette::Window);
  const QColor fore = colours.color(QPalette::Active, QPalette::WindowText);
  colours.setColor(QPalette::Disabled, QPalette::WindowText, Between(back, fore, kOffArrows));
  colours.setColor(QPalette::Disabled, QPalette::Button, Between(back, Qt::white, kOffThumb));
  setPalette(colours);
}

Shown ScrollBarWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.value = value();
  return shown;
}

void ScrollBarWidget::mousePressEvent(QMouseEvent* event) {
  // A scroll bar has no events of the mouse, but its window comes to the front.
  if (control_ != nullptr) Do([control = control_] { return user::Activate(control->window); });
  QScrollBar::mousePressEvent(event);
}

void ScrollBarWidget::wheelEvent(QWheelEvent* event) {
  event->accept();
  const int turns = WheelTurns(*event, wheel_);
  if (turns != 0) setValue(value() + turns * singleStep());
}

}  // namespace veldrin
