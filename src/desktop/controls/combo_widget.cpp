#include "desktop/controls/combo_widget.h"

#include "desktop/input/keys.h"
#include "machine/painting/text_ends.h"

#include <QLineEdit>
#include <QStandardItemModel>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace veldrin {

namespace {

bool IsEditable(const Control& control) {
  return control.kind == ControlKind::ComboBox && static_cast<const ComboBox&>(control).editable;
}

/// The entries. Qt empties the line of a combo that it is told to leave its entry; where the entry leaves the
/// combo, the line stays.
class EntryModel : public QStandardItemModel {
 public:
  using QStandardItemModel::QStandardItemModel;

  void Leave(int entry) { changePersistentIndex(index(entry, 0), QModelIndex()); }
};

}  // namespace

ComboWidget::ComboWidget(Control& control, Stage& stage, QWidget* parent)
    : ControlWidget(control, stage, parent) {
  setInsertPolicy(QComboBox::NoInsert);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(1);
  if (IsEditable(control)) {
    setModel(new EntryModel(this));
    setEditable(true);
    setCompleter(nullptr);
    lineEdit()->installEventFilter(this);
    // When editing ends, Qt picks the entry that the text is the same as; the user has picked nothing.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, &ComboWidget::EnterText);
    // Screen readers write without what Qt calls editing. An entry that is picked comes by `activated`.
    // The program may have written another text by now than the one that is told.
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
      const QString text = lineEdit()->text();
      if (text != shownText_ && text != itemText(currentIndex())) EnterText(text);
    });
  }
  connect(this, &QComboBox::activated, this, [this](int place) {
    if (control_ == nullptr || stage_->applying > 0) return;
    const auto index = static_cast<std::size_t>(place);
    if (place >= 0 && index < RecordEntries().size()) {
      const std::string entry = RecordEntries()[index];
      Do([&, record = control_] { return user::SelectEntry(*record, entry); });
    }
    if (control_ != nullptr) TakeText();
  });
}

void ComboWidget::EnterText(const QString& text) {
  if (control_ == nullptr || stage_->applying > 0) return;
  Do([&, record = control_] { return user::EnterText(*record, ToSlotText(text)); });
  if (control_ != nullptr) TakeText();
}

const std::string& ComboWidget::RecordText() const {
  if (control_->kind == ControlKind::DriveBox) return static_cast<const DriveBox&>(*control_).Drive;
  return static_cast<const ComboBox&>(*control_).Text;
}

const std::vector<std::string>& ComboWidget::RecordEntries() const {
  if (control_->kind == ControlKind::DriveBox) return static_cast<const DriveBox&>(*control_).entries;
  return static_cast<const ComboBox&>(*control_).entries;
}

int ComboWidget::RecordIndex() const {
  if (control_->kind == ControlKind::DriveBox) return static_cast<const DriveBox&>(*control_).ListIndex;
  return static_cast<const ComboBox&>(*control_).ListIndex;
}

void ComboWidget::Take(std::string_view slot) {
  if (slot == "Text" || slot == "Drive" || slot == "ListIndex") {
    if (slot == "Drive") stale_ = true;  // the list is read anew with it
    TakeText();
  } else {
    ControlWidget::Take(slot);
  }
}

void ComboWidget::TakeContent() {
  stale_ = true;
}

void ComboWidget::Settle() {
  if (!stale_) return;
  stale_ = false;
  const Applying applying(*stage_);
  clear();
  for (const std::string& entry : RecordEntries()) addItem(ToWidgetText(entry));
  TakeText();
}

/// A line that shows the text already keeps its cursor, what can be taken back, and what is being composed.
void ComboWidget::TakeText() {
  const Applying applying(*stage_);
  shownText_ = ToWidgetText(RecordText());
  if (!stale_) TakeIndex();
  if (isEditable() && lineEdit()->text() != shownText_) lineEdit()->setText(shownText_);
  update();
}

/// None comes of typing, which is to go on where it is.
void ComboWidget::TakeIndex() {
  if (currentIndex() == RecordIndex()) return;
  if (isEditable() && RecordIndex() < 0) {
    static_cast<EntryModel*>(model())->Leave(currentIndex());
  } else {
    setCurrentIndex(RecordIndex());
  }
}

void ComboWidget::TakeFont() {
  ControlWidget::TakeFont();
  if (isEditable()) lineEdit()->setFont(font());
}

void ComboWidget::TakeColours() {
  ControlWidget::TakeColours();
  if (isEditable()) lineEdit()->setPalette(palette());
}

Shown ComboWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.text = ToSlotText(isEditable() ? lineEdit()->text() : shownText_);
  shown.listIndex = currentIndex();
  shown.entries.emplace();
  for (int i = 0; i < count(); ++i) shown.entries->push_back(ToSlotText(itemText(i)));
  return shown;
}

void ComboWidget::paintEvent(QPaintEvent* event) {
  if (isEditable()) {
    ControlWidget::paintEvent(event);
    return;
  }
  // The text may be none of the list.
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = shownText_;
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ComboWidget::OfferText() {
  if (isEditable()) lineEdit()->selectAll();
}

/// The line takes the pointer's presses itself. The focus comes first, as to every control; the press puts
/// the cursor where it met the text.
bool ComboWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && control_ != nullptr &&
      !Do([control = control_] { return user::Focus(*control); })) {
    return true;
  }
  return ControlWidget::eventFilter(watched, event);
}

void ComboWidget::focusInEvent(QFocusEvent* event) {
  ControlWidget::focusInEvent(event);
  if (IsByKeyboard(*event)) OfferText();
}

/// The wheel over a combo that is not in use is meant for something else.
void ComboWidget::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    ControlWidget::wheelEvent(event);
  } else {
    HandOnWheel(*event);
  }
}

}  // namespace veldrin
