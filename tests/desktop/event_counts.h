// Counts what widgets are sent, for tests of what reaches them.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

#include <map>

namespace veldrin {

/// The events that a widget has been sent since; by the application, those of all widgets.
class EventCounts : public QObject {
 public:
  explicit EventCounts(QObject& watched) { watched.installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object->isWidgetType()) ++of[event->type()];
    return false;
  }
  std::map<QEvent::Type, int> of;
};

/// How often a widget has painted itself since. A picture of it would be painted for the asking; this tells
/// what reaches the screen without it.
class PaintCount {
 public:
  /// What is due before is painted first.
  explicit PaintCount(QWidget& widget) : events_(widget) { Forget(); }

  int Taken() {
    QCoreApplication::processEvents();
    return events_.of[QEvent::Paint];
  }

 private:
  void Forget() {
    QCoreApplication::processEvents();
    events_.of.clear();
  }

  EventCounts events_;
};

}  // namespace veldrin
