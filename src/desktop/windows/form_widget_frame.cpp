#include "desktop/controls/menu_view.h"
#include "desktop/windows/form_widget.h"
#include "desktop/windows/placement.h"
#include "machine/painting/fonts.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>

#include <utility>

namespace veldrin {

namespace {

constexpr float kMenuFontSize = 9;
constexpr int kTitleHeight = 32;
constexpr int kFramingTime = 200;    // ms from a window's first activity until its frame rests
constexpr int kRestoringTime = 300;  // ms until a desktop has given a window its normal size back

/// The program counts places from where the primary screen begins, which is the only one that it knows.
QPoint Origin() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  return screen == nullptr ? QPoint() : screen->geometry().topLeft();
}

}  // namespace

// ---- the zoom ----

void FormWidget::TakeZoom() {
  const Applying applying(*stage_);
  if (menuBar_ != nullptr) {
    const QFont font =
        FontFor({"Arial", kMenuFontSize, false, false}, kPixelsPerInch * stage_->zoom.Factor());
    menuBar_->setFont(font);
    for (Control* control : known_) {
      if (control->kind == ControlKind::Menu && !control->children.empty()) {
        static_cast<MenuView*>(ViewOf(*control))->Submenu().setFont(font);
      }
    }
  }
  for (const Control* control : known_) {
    // Children of panels follow their panel.
    ControlView* const view = control->parent == window_ ? ViewOf(*control) : nullptr;
    if (view != nullptr) view->Rescale();
  }
  TakeSize();
  client_->update();
}

void FormWidget::Rescale() {
  TakeZoom();
  const double now = stage_->zoom.Factor();
  const double before = memory_.Zoomed(now);
  if (!ellipse_.isNull()) return;
  const Applying applying(*stage_);
  const bool away = !State().IsNormal();
  const auto twips = [&](const Slot<float>& slot, int pixels) {
    const double place = away ? slot * before / now : stage_->zoom.Twips(pixels);
    return static_cast<float>(place);
  };
  const QScopedValueRollback<bool> telling(tellingFrame_, true);
  const QPoint corner = pos() - Origin();
  window_->Left = twips(window_->Left, corner.x());
  window_->Top = twips(window_->Top, corner.y());
  Reveal(focusWidget());
  if (isMaximized()) TellFrameSoon();
}

// ---- place and state ----

FrameState FormWidget::State() const {
  return {isMinimized(), isMaximized()};
}

/// Where the program wants the frame.
QPoint FormWidget::Corner() const {
  const Zoom& zoom = stage_->zoom;
  return Origin() + QPoint(qRound(zoom.Pixels(window_->Left)), qRound(zoom.Pixels(window_->Top)));
}

void FormWidget::TakePosition() {
  const QPoint corner = Corner();
  if (ellipse_.isNull()) {
    if (!isMaximized() && !tellingFrame_) move(corner);
    return;
  }
  // Only the box of the ellipse is a window on the screen; the rest would be cut away.
  const double factor = stage_->zoom.Factor();
  const QRect box(ellipse_.topLeft() * factor, ellipse_.size() * factor);
  setMinimumSize(box.size());
  setMaximumSize(box.size());
  setGeometry(QRect(corner + box.topLeft(), box.size()));
  scroll_->setGeometry(rect());
  scroll_->takeWidget();
  client_->setParent(this);
  client_->setGeometry(QRect(-box.topLeft(), ClientPixels(*window_, stage_->zoom)));
  client_->show();
  setMask(QRegion(rect(), QRegion::Ellipse));
}

void FormWidget::CutToEllipse(const QRect& box) {
  const Applying applying(*stage_);
  ellipse_ = box;
  TakePosition();
}

/// A window that was left on a screen which is gone, or at another zoom, can still be taken by its title.
void FormWidget::KeepOnScreen() {
  if (!ellipse_.isNull() || isMaximized()) return;
  QList<QRect> rooms;
  for (const QScreen* screen : QGuiApplication::screens()) rooms.append(screen->availableGeometry());
  const QSize whole = window_->hasFrame ? size() + kFrameRoom : size();
  const QPoint corner = CornerInReach({pos(), whole}, kTitleHeight, rooms);
  if (corner != pos()) move(corner);
}

void FormWidget::TakeState() {
  if (!isVisible()) return;
  const auto state = static_cast<enum WindowState>(window_->WindowState.get());
  Qt::WindowStates states = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (state == WindowState::Minimised) states |= Qt::WindowMinimized;
  if (state == WindowState::Maximised) states |= Qt::WindowMaximized;
  setWindowState(states);
}

// ---- what the desktop does with the window ----

void FormWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (window_ == nullptr) return;
  const bool isState = event->type() == QEvent::WindowStateChange;
  if (isState) {
    const Qt::WindowStates old = static_cast<QWindowStateChangeEvent*>(event)->oldState();
    FrameStateChanged({old.testFlag(Qt::WindowMinimized), old.testFlag(Qt::WindowMaximized)});
  }
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && !std::exchange(wasActive_, true)) {
    // A frame that a window manager is still putting around a new window would lose its place if it grew.
    if (strip_ != nullptr) QTimer::singleShot(kFramingTime, strip_, [this] { strip_->Allow(); });
  }
  if (stage_->applying > 0) return;
  Window& window = *window_;
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && window.desk.active != &window) {
    BringModalBack();
    stage_->input.Do([&] { return user::Activate(window); });
  } else if (isState) {
    const auto state = isMinimized()   ? WindowState::Minimised
                       : isMaximized() ? WindowState::Maximised
                                       : WindowState::Normal;
    if (window.WindowState == static_cast<int>(state)) return;
    stage_->input.Do([&] { return user::SetState(window, static_cast<int>(state)); });
  }
}

/// A zoom that changed while the window was away from its normal state finds it when it comes back.
void FormWidget::FrameStateChanged(const FrameState& before) {
  if (!ellipse_.isNull()) return;
  const Applying applying(*stage_);
  switch (memory_.StateChanged(before, State(), FillsScreen())) {
    case AfterState::Nothing:
      return;
    case AfterState::FillInside:
      TakeSize();
      break;
    case AfterState::ShowBars:
      ShowBars();
      break;
    case AfterState::RestoreSoon:
      QTimer::singleShot(0, this, [this] { EndRestoring(); });
      break;
    case AfterState::RestoreLater:
      QTimer::singleShot(kRestoringTime, this, [this] { EndRestoring(); });
      break;
  }
  TellFrameSoon();
}

/// The desktop has given the frame back the pixels that it had at another zoom.
void FormWidget::EndRestoring() {
  if (!memory_.Restored() || window_ == nullptr) return;
  {
    const Applying applying(*stage_);
    client_->resize(ContentFor(InsidePixels(memory_.Normal())));
    FitFrame();
  }
  TellFrame();
}

void FormWidget::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (stage_->applying == 0) TellFrame();
}

void FormWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceInside();
  ShowBars();
  if (memory_.Restoring()) {
    QTimer::singleShot(0, this, [this] { EndRestoring(); });
  } else if (stage_->applying == 0) {
    TellFrame();
  }
}

void FormWidget::TellFrameSoon() {
  QTimer::singleShot(0, this, [this] { TellFrame(); });
}

/// Tells the program where the desktop has put the frame, and how large it made it; later, while something
/// modal stands in front.
void FormWidget::TellFrame() {
  if (window_ == nullptr || !isVisible() || isMinimized() || memory_.Restoring() || !ellipse_.isNull())
    return;
  frameUntold_ = !user::Reachable(*window_);
  if (frameUntold_) return;
  TellPlace();
  if (window_ != nullptr && CanResize()) TellSize();
}

void FormWidget::TellPlace() {
  const QPoint now = pos();
  if (isMaximized() || now == Corner()) return;
  {
    const QScopedValueRollback<bool> telling(tellingFrame_, true);
    const QPoint told = now - Origin();
    const auto twips = [this](int pixels) { return static_cast<float>(stage_->zoom.Twips(pixels)); };
    stage_->input.Do([&, window = window_] { return user::Move(*window, twips(told.x()), twips(told.y())); });
  }
  // The program may have wished for another place.
  if (window_ != nullptr && Corner() != now) TakeWindowSlot("Left");
}

}  // namespace veldrin
