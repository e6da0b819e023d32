// Scroll bars. The value follows the thumb where the user moves it; the thumb of a value beyond the ends
// stands at the end.
#pragma once

#include "desktop/controls/control_widget.h"

#include <QScrollBar>

namespace veldrin {

class ScrollBarWidget : public ControlWidget<QScrollBar> {
 public:
  ScrollBarWidget(ScrollBar& bar, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  bool ClicksItself() const override { return false; }
  void TakeColours() override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  /// The value lies beyond the end where the thumb stands.
  void TellBeyondEnds();

  int wheel_ = 0;
};

}  // namespace veldrin
