// Scroll bars. The value follows the thumb.
#pragma once

#include "desktop/control_widget.h"

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
  int wheel_ = 0;
};

}  // namespace veldrin
