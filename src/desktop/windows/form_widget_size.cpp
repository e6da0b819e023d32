#include "desktop/windows/form_widget.h"
#include "desktop/windows/placement.h"

#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace veldrin {

namespace {

bool IsLarger(const QSize& size, const QSize& room) {
  return size.width() > room.width() || size.height() > room.height();
}

}  // namespace

bool FormWidget::Scrolls() const {
  const QSize lost(Rounding(), Rounding());
  return KeepsSize() || IsLarger(client_->size() - lost, size() - QSize(0, MenuHeight()));
}

/// What the user drew too small for its content is shown as he drew it.
QPixmap FormWidget::Picture() {
  if (!KeepsSize()) return grab();
  const int menu = MenuHeight();
  const QSize whole = client_->size() + QSize(0, menu);
  QPixmap picture(whole * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  if (menuBar_ != nullptr) {
    menuBar_->setGeometry(0, 0, whole.width(), menu);
    menuBar_->render(&picture);
    PlaceInside();
  }
  client_->render(&picture, QPoint(0, menu));
  return picture;
}

/// What the screen has for a frame; without a screen, what it asks for.
QSize FormWidget::RoomOnScreen(const QSize& otherwise) const {
  return screen() == nullptr ? otherwise : screen()->availableGeometry().size() - kFrameRoom;
}

int FormWidget::MenuHeight() const {
  return menuBar_ == nullptr ? 0 : menuBar_->sizeHint().height();
}

/// The area inside of an outer size in twips.
QSize FormWidget::InsidePixels(const QSizeF& outer) const {
  const Zoom& zoom = stage_->zoom;
  const float frameWidth = window_->Width - window_->InnerWidth();
  const float frameHeight = window_->Height - window_->InnerHeight();
  return {std::max(1, qRound(zoom.Pixels(outer.width() - static_cast<double>(frameWidth)))),
          std::max(1, qRound(zoom.Pixels(outer.height() - static_cast<double>(frameHeight))))};
}

/// Logical pixels that a frame may lose where they are no whole number of the screen's.
int FormWidget::Rounding() const {
  return devicePixelRatioF() == std::floor(devicePixelRatioF()) ? 0 : 1;
}

/// What scroll bars take: one down the side, one across below.
QSize FormWidget::Bars(bool down, bool across) const {
  const int besides = scroll_->verticalScrollBar()->sizeHint().width() + Rounding();
  const int below = scroll_->horizontalScrollBar()->sizeHint().height() + Rounding();
  return {down ? besides : 0, across ? below : 0};
}

/// What they take where `whole` has no room in `room`.
QSize FormWidget::BarsFor(const QSize& whole, const QSize& room) const {
  const QSize both = Bars(true, true);
  bool down = whole.height() > room.height();
  const bool across = whole.width() > room.width() - (down ? both.width() : 0);
  down = down || (across && whole.height() > room.height() - both.height());
  return Bars(down, across);
}

QSize FormWidget::ContentFor(const QSize& inside) const {
  return CanResize() ? inside.expandedTo(InsidePixels(asDescribed_)) : inside;
}

QSize FormWidget::FrameFor(const QSize& inside) const {
  const QSize content = ContentFor(inside);
  const QSize bars = Bars(content.height() > inside.height(), content.width() > inside.width());
  return inside + bars + QSize(0, MenuHeight());
}

/// The smallest frame that the user can draw: the whole menu, and half of the content in either direction.
QSize FormWidget::LeastFrame() const {
  const QSize half = ContentFor({0, 0}) / 2;
  const int menu = menuBar_ == nullptr ? 0 : menuBar_->sizeHint().width();
  return {std::max(half.width(), menu), half.height() + MenuHeight()};
}

/// The area inside that the frame asks for as it is. What has no room on the screen keeps at least its normal
/// size.
QSize FormWidget::InsideOfFrame() const {
  const QSize room(width(), height() - MenuHeight());
  if (!KeepsSize()) return room - BarsFor(ContentFor({0, 0}) - QSize(Rounding(), Rounding()), room);
  const QSize least = InsidePixels(normal_);
  return (room - BarsFor(ContentFor(least), room)).expandedTo(least);
}

/// The desktop gives a maximised window the size of the screen. It does so before or behind its word that the
/// window is maximised.
bool FormWidget::FillsScreen() const {
  const QSize room = RoomOnScreen(size());
  return width() >= room.width() && height() >= room.height();
}

void FormWidget::TakeSize() {
  if (!ellipse_.isNull()) {
    TakePosition();
    return;
  }
  client_->resize(ContentFor(ClientPixels(*window_, stage_->zoom)));
  if (isMaximized() || isMinimized()) {
    ShowBars();
    PlaceInside();
    return;
  }
  if (!tellingFrame_ || !clipped_) normal_ = {window_->Width, window_->Height};
  // A frame that the user is drawing at is not pulled out of his hand.
  if (tellingFrame_) {
    ShowBars();
    return;
  }
  normalBefore_ = normal_;
  FitFrame();
}

/// Gives the frame the size that the area inside wants, or what the screen has of it.
void FormWidget::FitFrame() {
  const QSize inside = InsidePixels(normal_);
  const QSize whole = FrameFor(inside);
  const QSize room = RoomOnScreen(whole);
  clipped_ = window_->hasFrame && IsLarger(whole, room);
  const QSize withBars = clipped_ ? whole + BarsFor(whole, room) : whole;
  const QSize size = withBars.boundedTo(clipped_ ? room : whole);
  const bool mayShrink = CanResize() || clipped_;
  setMinimumSize(mayShrink ? LeastFrame().boundedTo(size) : size);
  setMaximumSize(CanResize() ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : withBars);
  resize(size);
  PlaceInside();
  ShowBars();
}

void FormWidget::ShowBars() {
  const auto bars = Scrolls() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
  scroll_->setHorizontalScrollBarPolicy(bars);
  scroll_->setVerticalScrollBarPolicy(bars);
}

/// Menu on top, the area inside below it.
void FormWidget::PlaceInside() {
  if (!ellipse_.isNull()) return;
  const int menu = MenuHeight();
  if (menuBar_ != nullptr) menuBar_->setGeometry(0, 0, width(), menu);
  scroll_->setGeometry(0, menu, width(), std::max(0, height() - menu));
}

void FormWidget::TellSize() {
  const Zoom& zoom = stage_->zoom;
  const QSize before = ClientPixels(*window_, zoom);
  const QSize normal = InsidePixels(normal_);
  const QSize now = InsideOfFrame();
  const QSize change = now - before;
  if (std::max(std::abs(change.width()), std::abs(change.height())) <= Rounding()) return;
  // A side that was not drawn at keeps its length to the twip, and gets its old one back so.
  Window& window = *window_;
  const auto length = [&](int pixels, int same, float twips, int old, double oldTwips, float inner) {
    if (pixels == same) return twips;
    if (pixels == old) return static_cast<float>(oldTwips);
    return static_cast<float>(zoom.Twips(pixels)) + (twips - inner);
  };
  const float newWidth =
      length(now.width(), before.width(), window.Width, normal.width(), normal_.width(), window.InnerWidth());
  const float newHeight = length(now.height(), before.height(), window.Height, normal.height(),
                                 normal_.height(), window.InnerHeight());
  normalBefore_ = normal_;
  {
    const QScopedValueRollback<bool> telling(tellingFrame_, true);
    stage_->input.Do([&] { return user::Resize(window, newWidth, newHeight); });
  }
  // The handler may have wished for another size.
  if (window_ != nullptr && ClientPixels(*window_, zoom) != now) TakeWindowSlot("Width");
}

}  // namespace veldrin
