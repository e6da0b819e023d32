// The ring around what F6 has reached. It lies in front of all that the window has, lets the mouse through
// and follows its widget. While something covers that it is not to be seen, and it lets go of a widget that
// is hidden or disabled, and when the mouse is pressed anywhere in the window.
#pragma once

#include "desktop/windows/client_area.h"
#include "desktop/windows/zoom.h"

#include <QPointer>
#include <QWidget>

namespace veldrin {

class ReachRing : public QWidget {
 public:
  /// A ring around nothing, in an area that all the widgets lie on.
  ReachRing(ClientArea& area, const Zoom& zoom);

  void Surround(QWidget& widget);
  void LetGo();
  /// Others may have come to the front, or out of the way.
  void StayInFront();
  /// The widget inside; null for none.
  QWidget* Around() const { return around_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow();
  int Line() const;

  const ClientArea* area_;
  const Zoom* zoom_;
  QPointer<QWidget> around_;
};

}  // namespace veldrin
