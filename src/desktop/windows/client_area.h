// The inside of a window: what its controls lie on, and what the window itself has of mouse events.
#pragma once

#include "desktop/controls/control_widget.h"
#include "view/window.h"

namespace veldrin {

class ClientArea : public ControlWidget<QWidget> {
 public:
  ClientArea(Window& window, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  void TakeAll() override;

  /// An event has ended: the first steps may come or go.
  void Follow();
  /// The place of a widget that lies in it.
  QRect PlaceOf(const QWidget& widget) const { return {widget.mapTo(this, QPoint()), widget.size()}; }
  /// Whether the pointer would meet such a widget, or what lies on it, in its middle.
  bool IsUncovered(const QWidget& widget) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::string window_;
  const QSizeF fullSize_;  // twips
  bool firstSteps_ = false;
  bool japanese_ = false;
};

}  // namespace veldrin
