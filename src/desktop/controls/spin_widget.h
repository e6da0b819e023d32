// Spin buttons: two arrows, one above the other or, on a wide button, side by side. A pressed arrow repeats;
// the wheel turns as well.
#pragma once

#include "desktop/controls/control_widget.h"

#include <QTimer>

namespace veldrin {

class SpinWidget : public ControlWidget<QWidget> {
 public:
  SpinWidget(SpinButton& spin, Stage& stage, QWidget* parent);

  /// The half of the button that holds an arrow.
  QRect ArrowRect(bool up) const;
  /// One turn, whoever asks for it.
  void Turn(bool up);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  bool IsSideBySide() const;
  void TellTurned();
  void Stop();
  void PaintArrow(QPainter& painter, bool up) const;
  QColor ArrowColour() const;

  QTimer repeat_;
  // The arrow that the mouse holds, which the wheel and keys turn past.
  bool held_ = false;
  bool up_ = false;
  bool inside_ = false;
  int wheel_ = 0;
};

}  // namespace veldrin
