#include "desktop/windows/message_strip.h"

#include "machine/painting/fonts.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QResizeEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace veldrin {

namespace {

constexpr float kFontSize = 9;
constexpr int kPassingTime = 10000;  // ms
constexpr double kMargin = 4;        // pixels of the program
constexpr double kGap = 8;
constexpr double kPadding = 10;  // of a button's text to its sides

// clang-format off
constexpr char kLook[] =
    "#strip { background: #fffbe6; border: 0; border-top: 1px solid #a08000; }"
    "#strip QLabel { color: #000000; background: transparent; }"
    "#strip QPushButton { color: #000000; background: #f2f2f2; border: 1px solid #606060; border-radius: 2px; }"
    "#strip QPushButton:hover { background: #ffffff; }"
    "#strip QPushButton:pressed { background: #d0d0d0; }"
    "#strip QPushButton[reached=\"true\"] { border: 2px solid #0040c0; background: #ffffff; }";
// clang-format on

QStyle::StandardPixmap IconFor(Severity severity) {
  switch (severity) {
    case Severity::Warning:
      return QStyle::SP_MessageBoxWarning;
    case Severity::Failure:
      return QStyle::SP_MessageBoxCritical;
    case Severity::Information:
      break;
  }
  return QStyle::SP_MessageBoxInformation;
}

}  // namespace

MessageStrip::MessageStrip(Stage& stage, QWidget* parent, std::function<void()> resized)
    : QFrame(parent),
      stage_(&stage),
      resized_(std::move(resized)),
      icon_(new QLabel(this)),
      text_(new QLabel(this)) {
  setObjectName("strip");
  setStyleSheet(kLook);
  setFocusPolicy(Qt::NoFocus);
  text_->setObjectName("text");
  text_->setTextFormat(Qt::PlainText);
  text_->setFocusPolicy(Qt::NoFocus);
  passing_.setSingleShot(true);
  QObject::connect(&passing_, &QTimer::timeout, this, [this] { stage_->notices.Drop(); });
  stage.notices.changed = [this] { Show(); };
  hide();
}

MessageStrip::~MessageStrip() {
  stage_->notices.changed = nullptr;
}

void MessageStrip::Follow() {
  const bool same = zoom_ == stage_->zoom.Factor() && japanese_ == stage_->input.InJapanese();
  if (!same && stage_->notices.Shown() != nullptr) Show();
}

void MessageStrip::Allow() {
  allowed_ = true;
  Show();
}

void MessageStrip::Show() {
  if (!allowed_) return;
  const Notice* const notice = stage_->notices.Shown();
  const int before = room_;
  if (notice == nullptr) {
    LetGo();
    passing_.stop();
    room_ = 0;
    whole_.clear();
    hide();
  } else {
    const double pixel = zoom_ = stage_->zoom.Factor();
    japanese_ = stage_->input.InJapanese();
    const QFont font = FontFor({"Arial", kFontSize, false, false}, kPixelsPerInch * pixel);
    setFont(font);
    text_->setFont(font);
    const QString words = QString::fromStdString(notice->text.In(stage_->input.InJapanese()));
    const bool isNew = words != whole_;
    whole_ = words;
    MakeButtons();
    room_ = Lines() * QFontMetrics(font).height() + qRound(pixel * 4 * kMargin);
    const int side = QFontMetrics(font).height();
    icon_->setPixmap(style()->standardIcon(IconFor(notice->severity)).pixmap(side, side));
    setAccessibleName(whole_);
    text_->setAccessibleName(whole_);
    text_->setToolTip(whole_);
    if (stage_->notices.Passes() && isNew) passing_.start(kPassingTime);
    show();
    Arrange();
    if (isNew) {
      QAccessibleEvent heard(this, QAccessible::Alert);
      QAccessible::updateAccessibility(&heard);
    }
  }
  if (room_ != before && resized_) resized_();
}

void MessageStrip::MakeButtons() {
  const Notice* const notice = stage_->notices.Shown();
  const int reached = reached_;
  LetGo();
  for (QPushButton* button : buttons_) {
    button->hide();
    button->deleteLater();  // it may be in its own click
  }
  buttons_.clear();
  for (const NoticeAction& action : notice->actions) {
    AddButton(QString::fromStdString(action.caption.In(stage_->input.InJapanese())), action.act);
  }
  if (notice->actions.empty()) {
    QPushButton* const away = AddButton(QString(QChar(0x00D7)), nullptr);
    away->setAccessibleName(stage_->input.InJapanese() ? "閉じる" : "Close");
    away->setToolTip(away->accessibleName());
  }
  if (reached >= 0) Reach(std::min(reached, static_cast<int>(buttons_.size()) - 1));
}

QPushButton* MessageStrip::AddButton(const QString& text, std::function<void()> act) {
  auto* const button = new QPushButton(text, this);
  button->setFocusPolicy(Qt::NoFocus);
  button->setFont(font());
  QObject::connect(button, &QPushButton::clicked, this, [this, act = std::move(act)] { Press(act); });
  buttons_.push_back(button);
  button->show();
  return button;
}

/// What is done about a notice is an event of the program. The notice goes first: the action may tell others.
void MessageStrip::Press(const std::function<void()>& act) {
  const std::function<void()> action = act;
  stage_->notices.Drop();
  if (action) stage_->input.Run(action);
}

void MessageStrip::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  Arrange();
}

/// Where the text begins, and what it has of the width.
int MessageStrip::TextLeft() const {
  return 2 * qRound(zoom_ * kGap) + QFontMetrics(font()).height();
}

int MessageStrip::TextWidth(int whole) const {
  const QFontMetrics metrics(font());
  int right = whole - qRound(zoom_ * kMargin);
  for (const QPushButton* button : buttons_) {
    right -=
        metrics.horizontalAdvance(button->text()) + 2 * qRound(zoom_ * kPadding) + qRound(zoom_ * kMargin);
  }
  return std::max(1, right - qRound(zoom_ * kGap) - TextLeft());
}

/// A text that has no room in one line gets a second.
int MessageStrip::Lines() const {
  const int needed = QFontMetrics(font()).horizontalAdvance(whole_);
  return needed <= TextWidth(parentWidget()->width()) ? 1 : 2;
}

void MessageStrip::Arrange() {
  const double pixel = stage_->zoom.Factor();
  const QFontMetrics metrics(font());
  const int margin = qRound(pixel * kMargin);
  const int gap = qRound(pixel * kGap);
  const int inner = height() - 2 * margin;
  int right = width() - margin;
  for (auto button = buttons_.rbegin(); button != buttons_.rend(); ++button) {
    const int wide = metrics.horizontalAdvance((*button)->text()) + 2 * qRound(pixel * kPadding);
    right -= wide;
    (*button)->setGeometry(right, margin, wide, inner);
    right -= margin;
  }
  const int icon = metrics.height();
  icon_->setGeometry(gap, (height() - icon) / 2, icon, icon);
  const int room = TextWidth(width());
  text_->setGeometry(TextLeft(), 0, room, height());
  const int lines = height() >= 2 * metrics.height() + 2 * margin ? 2 : 1;
  text_->setWordWrap(lines > 1);
  // The end of a line is not filled where a word would not fit.
  text_->setText(metrics.elidedText(whole_, Qt::ElideMiddle, lines > 1 ? 2 * room - 6 * icon : room));
}

// ---- F6 ----

QPushButton* MessageStrip::Reached() const {
  const bool any = reached_ >= 0 && reached_ < static_cast<int>(buttons_.size());
  return any ? buttons_[static_cast<std::size_t>(reached_)] : nullptr;
}

void MessageStrip::Reach(int place) {
  LetGo();
  reached_ = place;
  if (QPushButton* button = Reached()) {
    button->setProperty("reached", true);
    button->style()->polish(button);
    QAccessibleEvent heard(button, QAccessible::Focus);
    QAccessible::updateAccessibility(&heard);
  }
}

void MessageStrip::LetGo() {
  if (QPushButton* button = Reached()) {
    button->setProperty("reached", false);
    button->style()->polish(button);
  }
  reached_ = -1;
}

bool MessageStrip::ReachFirst() {
  if (!isVisible() || buttons_.empty()) return false;
  Reach(0);
  return true;
}

bool MessageStrip::ReachLast() {
  if (!isVisible() || buttons_.empty()) return false;
  Reach(static_cast<int>(buttons_.size()) - 1);
  return true;
}

bool MessageStrip::ReachNeighbour(bool forward) {
  const int next = reached_ + (forward ? 1 : -1);
  if (next < 0 || next >= static_cast<int>(buttons_.size())) {
    LetGo();
    return false;
  }
  Reach(next);
  return true;
}

void MessageStrip::PressReached() {
  if (QPushButton* button = Reached()) button->click();
}

}  // namespace veldrin
