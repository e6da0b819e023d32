// Text boxes of one line and of several.
//
// Some editing keys are keys of the menu as well. In a box that has the focus, Ctrl+C copies when the user
// has selected something and calculates otherwise; Ctrl+X always cuts, so that nobody quits while he edits;
// Ctrl+Z takes back what was typed and, when nothing is left to take back, shows the combination. What a box
// selects by itself, when the keyboard comes to it, is to be typed over and is nothing to copy.
//
// Text can be dropped on a box. Files are the window's.
#pragma once

#include "desktop/control_widget.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace veldrin {

class LineBoxWidget : public ControlWidget<QLineEdit> {
 public:
  LineBoxWidget(TextBox& box, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  bool event(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  const TextBox& Record() const { return static_cast<const TextBox&>(*control_); }
  void TakeText();

  bool selectedByItself_ = false;
};

class TextAreaWidget : public ControlWidget<QPlainTextEdit> {
 public:
  TextAreaWidget(TextBox& box, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  bool event(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;

 private:
  const TextBox& Record() const { return static_cast<const TextBox&>(*control_); }
  void TakeText();
};

}  // namespace veldrin
