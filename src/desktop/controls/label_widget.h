// Labels.
#pragma once

#include "desktop/controls/control_widget.h"

#include <QLabel>

namespace veldrin {

class LabelWidget : public ControlWidget<QLabel> {
 public:
  LabelWidget(Label& label, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  const Label& Record() const { return static_cast<const Label&>(*control_); }
  QColor TextColour() const;

  const bool transparent_;
  bool isWhole_ = true;  // whether the text was painted uncut
};

}  // namespace veldrin
