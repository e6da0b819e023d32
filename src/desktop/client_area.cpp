#include "desktop/client_area.h"

#include "desktop/artwork.h"

#include <QPainter>

namespace veldrin {

ClientArea::ClientArea(Window& window, Stage& stage, QWidget* parent)
    : ControlWidget(window, stage, parent), window_(window.name), fullSize_(window.Width, window.Height) {}

/// Size, place and visibility are the frame's.
void ClientArea::Take(std::string_view slot) {
  const Applying applying(*stage_);
  if (slot == "BackColor" || slot == "ForeColor") TakeColours();
}

void ClientArea::TakeAll() {
  Take("BackColor");
}

void ClientArea::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  PaintWindowPicture(painter,
                     {0, 0, stage_->zoom.Pixels(fullSize_.width()), stage_->zoom.Pixels(fullSize_.height())},
                     window_);
}

}  // namespace veldrin
