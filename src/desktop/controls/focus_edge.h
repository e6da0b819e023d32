// The edge of what has the focus, for kinds of controls that Qt marks by a cursor or a thin line alone.
#pragma once

#include "desktop/windows/zoom.h"

#include <QFocusFrame>

namespace veldrin {

/// Lies over its widget and lets the mouse through. A focus frame by class, so that screen readers do not
/// hear of it; it follows nothing by itself.
class FocusEdge : public QFocusFrame {
 public:
  FocusEdge(QWidget& around, const Zoom& zoom);

  /// Covers the widget as it is now, in front of all that lies in it.
  void Cover();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Zoom* zoom_;
};

}  // namespace veldrin
