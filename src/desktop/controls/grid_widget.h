// Grids. A click picks a cell, and so does Enter behind the arrow keys.
#pragma once

#include "desktop/controls/control_widget.h"
#include "view/grid.h"

#include <QTableWidget>

namespace veldrin {

class GridWidget : public ControlWidget<QTableWidget> {
 public:
  GridWidget(Grid& grid, Stage& stage, QWidget* parent);

  void Take(std::string_view slot) override;
  void TakeContent() override { stale_ = true; }
  void Rescale() override;
  void Settle() override;
  Shown WhatShows() const override;

 protected:
  bool ClicksItself() const override { return false; }
  void PickAt(const QPoint& point) override;
  bool OwnKey(QKeyEvent& event) override;
  void TakePlace() override;

 private:
  const Grid& Record() const { return static_cast<const Grid&>(*control_); }
  void Pick(int row, int column);
  void TakeCells();
  void TakeSizes();

  /// Cells are written one by one, hundreds of them; they are taken over behind the event.
  bool stale_ = true;
};

}  // namespace veldrin
