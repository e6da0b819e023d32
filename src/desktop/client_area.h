// The inside of a window: what its controls lie on, and what the window itself has of mouse events.
#pragma once

#include "desktop/control_widget.h"
#include "view/window.h"

namespace veldrin {

class ClientArea : public ControlWidget<QWidget> {
 public:
  ClientArea(Window& window, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  void TakeAll() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::string window_;
  const QSizeF fullSize_;  // twips
};

}  // namespace veldrin
