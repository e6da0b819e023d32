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

Extent ExtentOf(const QSize& size) {
  return {size.width(), size.height()};
}

QSize SizeOf(const Extent& extent) {
  return {extent.width, extent.height};
}

}  // namespace

bool FormWidget::Scrolls() const {
  const QSize lost(Rounding(), Rounding());
  return KeepsSize() || IsLarger(client_->size() - lost, size() - QSize(0, AroundHeight()));
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
QSize FormWidget::InsidePixels(const TwipExtent& outer) const {
  return {InnerPixels(outer.width - static_cast<double>(window_->FrameWidth()), stage_->zoom),
          InnerPixels(outer.height - static_cast<double>(window_->FrameHeight()), stage_->zoom)};
}

/// Logical pixels that a frame may lose where they are no whole number of the screen's.
int FormWidget::Rounding() const {
  return devicePixelRatioF() == std::floor(devicePixelRatioF()) ? 0 : 1;
}

/// What a scroll bar beside the area takes, and one below it.
Extent FormWidget::Bars() const {
  return {scroll_->verticalScrollBar()->sizeHint().width() + Rounding(),
          scroll_->horizontalScrollBar()->sizeHint().height() + Rounding()};
}

QSize FormWidget::ContentFor(const QSize& inside) const {
  return CanResize() ? inside.expandedTo(InsidePixels(asDescribed_)) : inside;
}

QSize FormWidget::FrameFor(const QSize& inside) const {
  const Extent bars = BarsAround(ExtentOf(inside), ExtentOf(ContentFor(inside)), Bars());
  return inside + SizeOf(bars) + QSize(0, AroundHeight());
}

/// The smallest frame that the user can draw: the whole menu, and half of the content in either direction.
Extent FormWidget::LeastFrame() const {
  const QSize half = ContentFor({0, 0}) / 2;
  const int menu = menuBar_ == nullptr ? 0 : menuBar_->sizeHint().width();
  return {std::max(half.width(), menu), half.height() + AroundHeight()};
}

/// The area inside that the frame asks for as it is. What has no room on the screen keeps at least its normal
/// size.
QSize FormWidget::InsideOfFrame() const {
  const Extent room{width(), height() - AroundHeight()};
  if (!KeepsSize()) {
    const Extent content = ExtentOf(ContentFor({0, 0})) - Extent{Rounding(), Rounding()};
    return SizeOf(room - BarsFor(content, room, Bars()));
  }
  const QSize least = InsidePixels(memory_.Normal());
  return SizeOf(Larger(room - BarsFor(ExtentOf(ContentFor(least)), room, Bars()), ExtentOf(least)));
}

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
  if (!State().IsNormal()) {
    ShowBars();
    PlaceInside();
    return;
  }
  memory_.Sized({window_->Width, window_->Height}, tellingFrame_);
  // A frame that the user is drawing at is not pulled out of his hand.
  if (tellingFrame_) {
    ShowBars();
  } else {
    FitFrame();
  }
}

/// Gives the frame the size that the area inside wants, or what the screen has of it.
void FormWidget::FitFrame() {
  const QSize whole = FrameFor(InsidePixels(memory_.Normal()));
  const FrameFit fit = FitOnScreen(ExtentOf(whole), ExtentOf(RoomOnScreen(whole)), Bars(), LeastFrame(),
                                   {window_->hasFrame, CanResize()});
  memory_.SetClipped(fit.clipped);
  setMinimumSize(SizeOf(fit.least));
  setMaximumSize(SizeOf(fit.most));
  resize(SizeOf(fit.size));
  PlaceInside();
  ShowBars();
}

void FormWidget::ShowBars() {
  const auto bars = Scrolls() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
  scroll_->setHorizontalScrollBarPolicy(bars);
  scroll_->setVerticalScrollBarPolicy(bars);
}

/// The strip comes or goes: the frame grows or shrinks by it, and where it is maximised the area gives way.
void FormWidget::MakeRoomForStrip() {
  if (window_ == nullptr || !ellipse_.isNull()) return;
  if (!State().IsNormal()) {
    PlaceInside();
    ShowBars();
    TellFrameSoon();
    return;
  }
  const Applying applying(*stage_);
  FitFrame();
}

/// Menu on top, the area inside below it, and the strip at the bottom.
void FormWidget::PlaceInside() {
  if (!ellipse_.isNull()) return;
  const int menu = MenuHeight();
  if (menuBar_ != nullptr) menuBar_->setGeometry(0, 0, width(), menu);
  const int strip = StripHeight();
  const int inside = std::max(0, height() - menu - strip);
  scroll_->setGeometry(0, menu, width(), inside);
  if (strip_ != nullptr) strip_->setGeometry(0, menu + inside, width(), strip);
}

void FormWidget::TellSize() {
  const Zoom& zoom = stage_->zoom;
  const QSize before = ClientPixels(*window_, zoom);
  const QSize normal = InsidePixels(memory_.Normal());
  const QSize now = InsideOfFrame();
  const QSize change = now - before;
  if (std::max(std::abs(change.width()), std::abs(change.height())) <= Rounding()) return;
  Window& window = *window_;
  const TwipExtent& outer = memory_.Normal();
  const Side across{window.Width, window.InnerWidth(), before.width(), outer.width, normal.width()};
  const Side down{window.Height, window.InnerHeight(), before.height(), outer.height, normal.height()};
  const float newWidth = OuterLength(now.width(), across, zoom);
  const float newHeight = OuterLength(now.height(), down, zoom);
  memory_.AboutToTell();
  {
    const QScopedValueRollback<bool> telling(tellingFrame_, true);
    stage_->input.Do([&] { return user::Resize(window, newWidth, newHeight); });
  }
  // The handler may have wished for another size.
  if (window_ != nullptr && ClientPixels(*window_, zoom) != now) TakeWindowSlot("Width");
}

}  // namespace veldrin
