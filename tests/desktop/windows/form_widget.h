// A window's widget, whole: zoomed, maximised, larger than the screen.
#pragma once

#include "desktop/windows/placement.h"
#include "tests/desktop/shown_differences.h"
#include "tests/desktop/test_window.h"

#include <QScreen>
#include <QScrollBar>

namespace veldrin {

class FormWidgetTest : public WidgetsTest {
 protected:
  FormWidgetTest() { ServeEvents(); }

  static void ServeEvents() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  QScrollArea& Area() { return *Widget().findChild<QScrollArea*>(); }
  QMenuBar& Bar() { return *Widget().findChild<QMenuBar*>(); }
  /// The screen inside of a frame.
  QSize ScreenSize() { return Widget().screen()->availableSize() - (Widget().frameSize() - Widget().size()); }

  void Zoom(double factor) {
    stage.zoom.Set(factor);
    ServeEvents();
  }

  void Maximise() {
    Widget().showMaximized();
    ServeEvents();
  }

  void Restore() {
    Widget().showNormal();
    ServeEvents();
    Wait(50);
  }

  /// Whether all of a control can be seen in its window.
  bool IsSeen(const Control& control) {
    QWidget& widget = WidgetOf(control);
    const QRect view = Area().viewport()->rect();
    return view.contains(QRect(widget.mapTo(Area().viewport(), QPoint(0, 0)), widget.size()));
  }

  /// The program's size in pixels, as far as it is inside of the frame.
  QSize TwipsInPixels() { return ClientPixels(*form, stage.zoom); }

  Events Differences() { return DifferenceLines(Widget(), stage); }
};

}  // namespace veldrin
