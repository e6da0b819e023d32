#include "desktop/controls/picture_widget.h"

#include "desktop/windows/placement.h"
#include "machine/painting/artwork.h"
#include "machine/painting/surface_painter.h"

#include <QPainter>

namespace veldrin {

PictureWidget::PictureWidget(Picture& picture, Stage& stage, QWidget* parent)
    : ControlWidget(picture, stage, parent), scale_(picture.surface.UserScale()) {}

void PictureWidget::Take(std::string_view slot) {
  if (slot == "Image") {
    update();
  } else {
    ControlWidget::Take(slot);
  }
}

void PictureWidget::TakePlace() {
  ControlWidget::TakePlace();
  // Less than a pixel more stretches the units of the children as well.
  const QSizeF exact = PlaceInParent(*control_, stage_->zoom).size();
  if (exact == exactSize_) return;
  exactSize_ = exact;
  RescaleChildren();
}

void PictureWidget::Rescale() {
  ControlWidget::Rescale();
  RescaleChildren();
}

void PictureWidget::Settle() {
  const Scale scale = Record().surface.UserScale();
  if (scale == scale_) return;
  scale_ = scale;
  RescaleChildren();
}

void PictureWidget::RescaleChildren() {
  for (QObject* child : children()) {
    auto* view = dynamic_cast<ControlView*>(child);
    if (view != nullptr && view->Shows() != nullptr) view->Rescale();
  }
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor back = palette().color(QPalette::Window);
  painter.fillRect(rect(), back);
  if (control_ == nullptr) return;
  const double border = BorderWidth();
  const QRectF inside = QRectF(rect()).adjusted(border, border, -border, -border);
  if (Record().Image != 0) PaintImage(painter, inside, Record().Image);
  const Surface& surface = Record().surface;
  if (!surface.Drawing().empty()) {
    PaintDrawing(painter, surface.Drawing(), {inside, stage_->zoom.Pixels(1), back});
  }
  PaintBorder(painter);
}

}  // namespace veldrin
