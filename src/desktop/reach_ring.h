// The ring around what the keyboard has reached. It lies in front of everything in its window, lets the mouse
// through, follows its widget, and goes when that cannot be used any more.
#pragma once

#include "desktop/zoom.h"

#include <QPointer>
#include <QWidget>

namespace veldrin {

class ReachRing : public QWidget {
 public:
  /// A ring around nothing, in an area that all the widgets lie on.
  ReachRing(QWidget& area, const Zoom& zoom);

  /// The ring of an area; null where none was made yet.
  static ReachRing* Of(const QWidget& area);

  void Surround(QWidget& widget);
  void LetGo();
  /// The widget inside; null for none.
  QWidget* Around() const { return around_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow();
  int Line() const;

  const Zoom* zoom_;
  QPointer<QWidget> around_;
};

}  // namespace veldrin
