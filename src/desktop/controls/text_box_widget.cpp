#include "desktop/controls/text_box_widget.h"

#include "desktop/input/dragged_files.h"
#include "desktop/input/keys.h"
#include "machine/painting/text_ends.h"

#include <QDragEnterEvent>

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

}  // namespace

template <class Base>
TextBoxWidget<Base>::TextBoxWidget(TextBox& box, Stage& stage, QWidget* parent)
    : ControlWidget<Base>(box, stage, parent) {
  // Screen readers write without what Qt calls editing.
  this->connect(this, &Base::textChanged, this, [this] { EnterText(); });
}

template <class Base>
void TextBoxWidget<Base>::Take(std::string_view slot) {
  if (slot == "Text") {
    TakeText();
  } else {
    ControlWidget<Base>::Take(slot);
  }
}

template <class Base>
QString TextBoxWidget<Base>::Wanted() const {
  return ToWidgetText(static_cast<const TextBox&>(*this->control_).Text);
}

/// A text area tells of every step of an input method; nothing is written while it composes.
template <class Base>
void TextBoxWidget<Base>::EnterText() {
  if (this->control_ == nullptr || this->stage_->applying > 0) return;
  const QString text = Written();
  if (text == Wanted()) return;
  this->Do([&, control = this->control_] { return user::EnterText(*control, ToSlotText(text)); });
  if (this->control_ != nullptr) TakeText();
}

/// A box that shows the text already keeps its cursor, and what can be taken back.
template <class Base>
void TextBoxWidget<Base>::TakeText() {
  const Applying applying(*this->stage_);
  const QString wanted = Wanted();
  if (Written() != wanted) Write(wanted);
}

template <class Base>
Shown TextBoxWidget<Base>::WhatShows() const {
  Shown shown = ControlWidget<Base>::WhatShows();
  shown.text = ToSlotText(Written());
  return shown;
}

template <class Base>
void TextBoxWidget<Base>::dragEnterEvent(QDragEnterEvent* event) {
  event->ignore();
  if (!CarriesFiles(*event->mimeData())) ControlWidget<Base>::dragEnterEvent(event);
}

LineBoxWidget::LineBoxWidget(TextBox& box, Stage& stage, QWidget* parent)
    : TextBoxWidget(box, stage, parent) {
  setAlignment(TextAlignment());
  connect(this, &QLineEdit::selectionChanged, this, [this] { selectedByItself_ = false; });
}

bool LineBoxWidget::event(QEvent* event) {
  if (BelongsToMenu(event, hasSelectedText() && !selectedByItself_, isUndoAvailable())) return true;
  return TextBoxWidget::event(event);
}

void LineBoxWidget::OfferText() {
  selectAll();
  selectedByItself_ = true;
}

void LineBoxWidget::focusInEvent(QFocusEvent* event) {
  TextBoxWidget::focusInEvent(event);
  if (IsByKeyboard(*event)) OfferText();
}

TextAreaWidget::TextAreaWidget(TextBox& box, Stage& stage, QWidget* parent)
    : TextBoxWidget(box, stage, parent) {
  setTabChangesFocus(true);
}

/// What Qt calls the plain text has a common blank for one that does not break.
QString TextAreaWidget::Written() const {
  QString text = document()->toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  text.replace(QChar::LineSeparator, QLatin1Char('\n'));
  return text;
}

bool TextAreaWidget::event(QEvent* event) {
  if (BelongsToMenu(event, textCursor().hasSelection(), document()->isUndoAvailable())) return true;
  return TextBoxWidget::event(event);
}

}  // namespace veldrin
