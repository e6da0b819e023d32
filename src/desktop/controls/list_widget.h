// File boxes and folder boxes.
#pragma once

#include "desktop/controls/control_widget.h"
#include "view/list_boxes.h"

#include <QListWidget>

namespace veldrin {

/// What both have in common: a list whose rows the user picks by a click or by the arrow keys.
class ListView : public ControlWidget<QListWidget> {
 public:
  ListView(Control& control, Stage& stage, QWidget* parent);

  void TakeContent() override { stale_ = true; }
  void Settle() override;

 protected:
  bool ClicksItself() const override { return false; }
  void PickAt(const QPoint& point) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  bool viewportEvent(QEvent* event) override;

  virtual void Fill() = 0;
  virtual void ShowPicked() = 0;
  virtual void PickRow(int row) = 0;
  /// A click beside the rows.
  virtual void PickNothing() {}
  /// The bar goes back to what is picked, wherever Qt moved it.
  void StandByPicked();

  /// The rows are read anew behind the event: boxes are often pointed elsewhere in several steps.
  bool stale_ = true;
};

class FileListWidget : public ListView {
 public:
  FileListWidget(FileBox& box, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  bool OpenAt(const QPoint& point) override;
  void Fill() override;
  void ShowPicked() override;
  void PickRow(int row) override;
  void PickNothing() override;

 private:
  const FileBox& Record() const { return static_cast<const FileBox&>(*control_); }
};

/// Shows the way from the root down to the folder, then the folders in it. A double click opens one, also of
/// those above.
class FolderListWidget : public ListView {
 public:
  FolderListWidget(FolderBox& box, Stage& stage, QWidget* parent);

  /// The row of the folder itself, and the row from `first` on that stands for a path; -1 for none.
  int OpenRow() const { return openRow_; }
  int RowOf(const std::string& path, int first) const;

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;

 protected:
  bool OpenAt(const QPoint& point) override;
  void Fill() override;
  void ShowPicked() override;
  void PickRow(int row) override;

 private:
  const FolderBox& Record() const { return static_cast<const FolderBox&>(*control_); }
  void AddRow(const std::string& path, const QString& name, int depth, bool open);

  std::vector<std::string> paths_;  // of the rows
  int openRow_ = 0;                 // the folder itself
};

}  // namespace veldrin
