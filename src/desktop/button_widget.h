// Buttons and option buttons. Space and Enter press them; arrows walk through the options of a panel.
#pragma once

#include "desktop/control_widget.h"

#include <QPushButton>
#include <QRadioButton>

namespace veldrin {

class ButtonWidget : public ControlWidget<QPushButton> {
 public:
  ButtonWidget(Button& button, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool OwnKey(QKeyEvent& event) override;

 private:
  bool byMouse_ = false;
};

class OptionWidget : public ControlWidget<QRadioButton> {
 public:
  OptionWidget(OptionButton& option, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool OwnKey(QKeyEvent& event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }
  /// The program chooses.
  void nextCheckState() override {}

 private:
  bool byMouse_ = false;
};

}  // namespace veldrin
