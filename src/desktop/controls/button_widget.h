// Buttons and option buttons. Space and Enter press them, the menu key and Shift+F10 do so with the right
// button of the mouse; arrows walk through the options of a panel.
#pragma once

#include "desktop/controls/control_widget.h"

#include <QPushButton>
#include <QRadioButton>

namespace veldrin {

/// What both have in common: how they are pressed.
template <class Base>
class PressableWidget : public ControlWidget<Base> {
 public:
  PressableWidget(Control& control, Stage& stage, QWidget* parent);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  bool OwnKey(QKeyEvent& event) override;

 private:
  bool byMouse_ = false;
};

class ButtonWidget : public PressableWidget<QPushButton> {
 public:
  ButtonWidget(Button& button, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class OptionWidget : public PressableWidget<QRadioButton> {
 public:
  OptionWidget(OptionButton& option, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool OwnKey(QKeyEvent& event) override;
  bool hitButton(const QPoint& point) const override { return rect().contains(point); }
  /// The program chooses.
  void nextCheckState() override {}
};

}  // namespace veldrin
