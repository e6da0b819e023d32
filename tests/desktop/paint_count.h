// A picture of a widget is painted for the asking; this counts what reaches the screen without it.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

namespace veldrin {

/// How often a widget has painted itself since.
class PaintCount : public QObject {
 public:
  /// What is due before is painted first.
  explicit PaintCount(QWidget& widget) {
    QCoreApplication::processEvents();
    widget.installEventFilter(this);
  }

  int Taken() {
    QCoreApplication::processEvents();
    return count_;
  }

  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }

 private:
  int count_ = 0;
};

}  // namespace veldrin
