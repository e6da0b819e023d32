// Text boxes of one line and of several.
//
// Some editing keys are keys of the menu as well. In a box that has the focus, Ctrl+C copies when the user
// has selected something and calculates otherwise; Ctrl+X always cuts, so that nobody quits while he edits;
// Ctrl+Z takes back what was typed and, when nothing is left to take back, shows the combination. What a box
// selects by itself, when the keyboard comes to it, is to be typed over and is nothing to copy.
//
// Text can be dropped on a box. Files are the window's.
#pragma once

#include "desktop/controls/control_widget.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace veldrin {

/// What both have in common.
template <class Base>
class TextBoxWidget : public ControlWidget<Base> {
 public:
  TextBoxWidget(TextBox& box, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;

  virtual QString Written() const = 0;
  virtual void Write(const QString& text) = 0;

 private:
  QString Wanted() const;
  void EnterText();
  void TakeText();
};

class LineBoxWidget : public TextBoxWidget<QLineEdit> {
 public:
  LineBoxWidget(TextBox& box, Stage& stage, QWidget* parent);

  void OfferText() override;

 protected:
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  QString Written() const override { return text(); }
  void Write(const QString& text) override { setText(text); }

 private:
  bool selectedByItself_ = false;
};

class TextAreaWidget : public TextBoxWidget<QPlainTextEdit> {
 public:
  TextAreaWidget(TextBox& box, Stage& stage, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  QString Written() const override;
  void Write(const QString& text) override { setPlainText(text); }
};

}  // namespace veldrin
