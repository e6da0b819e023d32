#include "desktop/text_box_widget.h"

#include "desktop/dropped_file.h"
#include "desktop/text_ends.h"

#include <QDragEnterEvent>
#include <QFocusEvent>

namespace veldrin {

namespace {

/// Whether an editing key belongs to the menu now, told before either of them sees it.
bool BelongsToMenu(QEvent* event, bool selected, bool canUndo) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool left =
      (key->matches(QKeySequence::Copy) && !selected) || (key->matches(QKeySequence::Undo) && !canUndo);
  if (left) event->ignore();
  return left;
}

Qt::Alignment AlignmentOf(Align align) {
  if (align == Align::Right) return Qt::AlignRight | Qt::AlignVCenter;
  if (align == Align::Centre) return Qt::AlignHCenter | Qt::AlignVCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

LineBoxWidget::LineBoxWidget(TextBox& box, Stage& stage, QWidget* parent)
    : ControlWidget(box, stage, parent) {
  setAlignment(AlignmentOf(box.look.align));
  // Screen readers write without what Qt calls editing.
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) {
    if (control_ == nullptr || stage_->applying > 0 || text == ToWidgetText(Record().Text)) return;
    Do([&, control = control_] { return user::EnterText(*control, ToSlotText(text)); });
    if (control_ != nullptr) TakeText();
  });
  connect(this, &QLineEdit::selectionChanged, this, [this] { selectedByItself_ = false; });
}

void LineBoxWidget::Take(std::string_view slot) {
  if (slot == "Text") {
    TakeText();
  } else {
    ControlWidget::Take(slot);
  }
}

/// A box that shows the text already keeps its cursor, and what can be taken back.
void LineBoxWidget::TakeText() {
  const Applying applying(*stage_);
  const QString wanted = ToWidgetText(Record().Text);
  if (text() != wanted) setText(wanted);
}

Shown LineBoxWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.text = ToSlotText(text());
  return shown;
}

bool LineBoxWidget::event(QEvent* event) {
  if (BelongsToMenu(event, hasSelectedText() && !selectedByItself_, isUndoAvailable())) return true;
  return ControlWidget::event(event);
}

void LineBoxWidget::dragEnterEvent(QDragEnterEvent* event) {
  event->ignore();
  if (!CarriesFiles(*event->mimeData())) ControlWidget::dragEnterEvent(event);
}

void LineBoxWidget::focusInEvent(QFocusEvent* event) {
  ControlWidget::focusInEvent(event);
  const Qt::FocusReason reason = event->reason();
  const bool byProgram = reason == Qt::OtherFocusReason;  // Tab and Enter go through the program as well
  if (!byProgram && reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) return;
  selectAll();
  selectedByItself_ = true;
}

TextAreaWidget::TextAreaWidget(TextBox& box, Stage& stage, QWidget* parent)
    : ControlWidget(box, stage, parent) {
  setTabChangesFocus(true);
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    if (control_ == nullptr || stage_->applying > 0) return;
    const QString text = toPlainText();
    if (text == ToWidgetText(Record().Text)) return;  // an input method composes
    Do([&, control = control_] { return user::EnterText(*control, ToSlotText(text)); });
    if (control_ != nullptr) TakeText();
  });
}

void TextAreaWidget::Take(std::string_view slot) {
  if (slot == "Text") {
    TakeText();
  } else {
    ControlWidget::Take(slot);
  }
}

void TextAreaWidget::TakeText() {
  const Applying applying(*stage_);
  const QString wanted = ToWidgetText(Record().Text);
  if (toPlainText() != wanted) setPlainText(wanted);
}

Shown TextAreaWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.text = ToSlotText(toPlainText());
  return shown;
}

bool TextAreaWidget::event(QEvent* event) {
  if (BelongsToMenu(event, textCursor().hasSelection(), document()->isUndoAvailable())) return true;
  return ControlWidget::event(event);
}

void TextAreaWidget::dragEnterEvent(QDragEnterEvent* event) {
  event->ignore();
  if (!CarriesFiles(*event->mimeData())) ControlWidget::dragEnterEvent(event);
}

}  // namespace veldrin
