// Combos and drive boxes: a text with a list that drops down.
#pragma once

#include "desktop/controls/control_widget.h"
#include "view/list_boxes.h"

#include <QComboBox>

namespace veldrin {

class ComboWidget : public ControlWidget<QComboBox> {
 public:
  /// `control` is a ComboBox or a DriveBox.
  ComboWidget(Control& control, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  void TakeContent() override;
  void OfferText() override;
  void Settle() override;
  Shown WhatShows() const override;

 protected:
  bool ClicksItself() const override { return false; }
  void TakeFont() override;
  void TakeColours() override;
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  const std::string& RecordText() const;
  const std::vector<std::string>& RecordEntries() const;
  int RecordIndex() const;
  void TakeText();
  void TakeIndex();
  void EnterText(const QString& text);

  QString shownText_;
  bool stale_ = true;
};

}  // namespace veldrin
