#include "desktop/controls/button_widget.h"

#include "desktop/accessible/accessible_name.h"
#include "desktop/input/keys.h"
#include "machine/painting/fitted_text.h"
#include "machine/painting/text_ends.h"

#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>
#include <vector>

namespace veldrin {

namespace {

constexpr QColor kOffText(110, 110, 110);
constexpr QColor kRing(70, 70, 70);
constexpr QColor kOffRing(140, 140, 140);
constexpr double kFocusInset = 3;  // between a button's edge and the ring of the focus

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

/// The ring of what has the focus, as wide as the zoom asks.
void PaintFocus(QPainter& painter, const QRect& ring, const QColor& colour, double factor) {
  const int width = std::max(1, qRound(factor));
  painter.setClipRegion(QRegion(ring) - ring.adjusted(width, width, -width, -width));
  painter.fillRect(ring, colour);
  painter.setClipping(false);
}

}  // namespace

template <class Base>
PressableWidget<Base>::PressableWidget(Control& control, Stage& stage, QWidget* parent)
    : ControlWidget<Base>(control, stage, parent) {
  this->connect(this, &Base::clicked, this, [this] {
    if (!byMouse_) this->ClickedOtherwise();
  });
}

/// The way up of the mouse is a gesture of its own, told behind Qt's click.
template <class Base>
void PressableWidget<Base>::mouseReleaseEvent(QMouseEvent* event) {
  byMouse_ = true;
  Base::mouseReleaseEvent(event);
  byMouse_ = false;
  this->Released(*event);
}

/// The way up of the mouse will not come to a widget that went away in between.
template <class Base>
void PressableWidget<Base>::hideEvent(QHideEvent* event) {
  this->setDown(false);
  ControlWidget<Base>::hideEvent(event);
}

/// The keyboard does what the mouse does, events of the mouse included: some buttons act on those alone.
/// With Ctrl, Alt or Shift the keys are those of shortcuts, and must not press in Qt's own way either.
template <class Base>
bool PressableWidget<Base>::OwnKey(QKeyEvent& event) {
  const bool right = IsRightClick(event);
  if (!right && !IsPressingKey(event)) return false;
  if (event.isAutoRepeat() || !(right || IsUnmodified(event))) return true;
  this->Do([right, control = this->control_] {
    return user::Click(*control, right ? kRightButton : kLeftButton);
  });
  return true;
}

ButtonWidget::ButtonWidget(Button& button, Stage& stage, QWidget* parent)
    : PressableWidget(button, stage, parent) {
  setAutoDefault(false);
}

void ButtonWidget::Take(std::string_view slot) {
  if (slot == "Caption") {
    setText(ToWidgetText(static_cast<const Button&>(*control_).Caption));
    setAccessibleName(AccessibleName(*control_));
  } else {
    PressableWidget::Take(slot);
  }
}

Shown ButtonWidget::WhatShows() const {
  Shown shown = PressableWidget::WhatShows();
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
  if (!hasFocus()) return;
  const int inset = qRound(kFocusInset * stage_->zoom.Factor());
  PaintFocus(painter, rect().adjusted(inset, inset, -inset, -inset), palette().color(QPalette::ButtonText),
             stage_->zoom.Factor());
}

OptionWidget::OptionWidget(OptionButton& option, Stage& stage, QWidget* parent)
    : PressableWidget(option, stage, parent) {
  setAutoExclusive(false);
  connect(this, &QRadioButton::toggled, this, [this] {
    if (control_ == nullptr || stage_->applying > 0) return;
    ClickedOtherwise();
    if (control_ == nullptr) return;
    const Applying applying(*stage_);
    Take("Value");
  });
}

void OptionWidget::Take(std::string_view slot) {
  const auto& option = static_cast<const OptionButton&>(*control_);
  if (slot == "Caption") {
    setText(ToWidgetText(option.Caption));
    setAccessibleName(AccessibleName(option));
  } else if (slot == "Value") {
    setChecked(option.Value);
  } else {
    PressableWidget::Take(slot);
  }
}

Shown OptionWidget::WhatShows() const {
  Shown shown = PressableWidget::WhatShows();
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
  if (hasFocus()) PaintFocus(painter, rect(), palette().color(QPalette::WindowText), factor);
  if (text().isEmpty()) return;
  painter.setPen(palette().color(QPalette::WindowText));
  DrawFitted(painter, QRectF(rect()).adjusted(size + 4 * factor, 0, -1, 0), WithoutMarks(text()), font(),
             Qt::AlignLeft);
}

bool OptionWidget::OwnKey(QKeyEvent& event) {
  if (PressableWidget::OwnKey(event)) return true;
  const auto& option = static_cast<const OptionButton&>(*control_);
  const int step = StepOf(event);
  if (step == 0) return false;
  if (OptionButton* neighbour = Neighbour(option, step)) {
    Do([neighbour] { return user::Click(*neighbour); });
  }
  return true;
}

}  // namespace veldrin
