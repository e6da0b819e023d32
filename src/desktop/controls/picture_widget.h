// Pictures: panels that other controls lie on, and drawing surfaces.
#pragma once

#include "desktop/controls/control_widget.h"

namespace veldrin {

class PictureWidget : public ControlWidget<QWidget> {
 public:
  PictureWidget(Picture& picture, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  void TakeContent() override { update(); }
  void Rescale() override;
  /// Places the children again where the surface's scale is another one than before.
  void Settle() override;

 protected:
  void TakePlace() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  const Picture& Record() const { return static_cast<const Picture&>(*control_); }
  void RescaleChildren();

  Scale scale_;
  QSizeF exactSize_;
};

}  // namespace veldrin
