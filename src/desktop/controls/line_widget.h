// Lines between two points, level or upright for the most part.
#pragma once

#include "desktop/controls/control_view.h"

#include <QWidget>

namespace veldrin {

class LineWidget : public QWidget, public ControlView {
 public:
  LineWidget(Line& line, Stage& stage, QWidget* parent);

  QWidget* Widget() override { return this; }
  void Take(std::string_view slot) override;
  void TakeAll() override;
  void Rescale() override;
  Shown WhatShows() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Line& Record() const { return static_cast<const Line&>(*control_); }
  void TakeEnds();

  QColor colour_;
  bool falls_ = true;  // from the left top to the right bottom
};

}  // namespace veldrin
