#include "desktop/controls/grid_widget.h"

#include "machine/painting/fitted_text.h"
#include "machine/painting/text_ends.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>

namespace veldrin {

namespace {

constexpr double kRowTwips = 270;

/// Paints cells that are just as wide as their texts.
class CellPainter : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool picked = option.state.testFlag(QStyle::State_Selected);
    if (picked) painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    painter->setPen(option.palette.color(picked ? QPalette::HighlightedText : QPalette::Text));
    DrawFitted(*painter, QRectF(option.rect).adjusted(1, 0, -1, 0), index.data().toString(), option.font,
               Qt::AlignHCenter);
  }
};

}  // namespace

GridWidget::GridWidget(Grid& grid, Stage& stage, QWidget* parent) : ControlWidget(grid, stage, parent) {
  setFrameShape(QFrame::NoFrame);
  horizontalHeader()->hide();
  verticalHeader()->hide();
  horizontalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setMinimumSectionSize(1);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTabKeyNavigation(false);
  setItemDelegate(new CellPainter(this));
}

void GridWidget::Take(std::string_view slot) {
  if (slot == "Cols" || slot == "Rows") {
    stale_ = true;
  } else {
    ControlWidget::Take(slot);
  }
}

void GridWidget::TakePlace() {
  ControlWidget::TakePlace();
  TakeSizes();
}

void GridWidget::Rescale() {
  ControlWidget::Rescale();
  TakeSizes();
}

void GridWidget::Settle() {
  if (!stale_) return;
  stale_ = false;
  const Applying applying(*stage_);
  TakeCells();
  TakeSizes();
}

Shown GridWidget::WhatShows() const {
  Shown shown = ControlWidget::WhatShows();
  shown.cells.emplace();
  for (int row = 0; row < rowCount(); ++row) {
    for (int column = 0; column < columnCount(); ++column) {
      const QTableWidgetItem* cell = item(row, column);
      shown.cells->push_back(cell == nullptr ? "" : ToSlotText(cell->text()));
    }
  }
  return shown;
}

void GridWidget::TakeCells() {
  const Grid& grid = Record();
  setRowCount(std::max(0, grid.Rows.get()));
  setColumnCount(std::max(0, grid.Cols.get()));
  for (int row = 0; row < rowCount(); ++row) {
    for (int column = 0; column < columnCount(); ++column) {
      QTableWidgetItem* cell = item(row, column);
      if (cell == nullptr) {
        cell = new QTableWidgetItem;
        setItem(row, column, cell);
      }
      cell->setText(ToWidgetText(grid.Cell(row, column)));
    }
  }
  if (rowCount() > 0 && columnCount() > 0 && currentRow() < 0) setCurrentCell(0, 0);
}

void GridWidget::TakeSizes() {
  if (control_ == nullptr || columnCount() > Record().Cols) return;
  // The room of the list's own scroll bar, where it needs one, is taken from the last column.
  const bool single = rowCount() <= 1;
  setVerticalScrollBarPolicy(single ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
  const int height = single ? viewport()->height() : qRound(stage_->zoom.Pixels(kRowTwips));
  for (int row = 0; row < rowCount(); ++row) setRowHeight(row, std::max(1, height));
  const bool scrolls = rowCount() * height > viewport()->height();
  const int room = width() - (scrolls ? verticalScrollBar()->sizeHint().width() : 0);
  double end = 0;
  for (int column = 0; column < columnCount(); ++column) {
    const int begin = qRound(stage_->zoom.Pixels(end));
    end += static_cast<double>(Record().ColWidth(column));
    const bool last = column + 1 == columnCount();
    const int edge =
        last ? std::min(room, qRound(stage_->zoom.Pixels(end))) : qRound(stage_->zoom.Pixels(end));
    setColumnWidth(column, std::max(1, edge - begin));
  }
}

void GridWidget::Pick(int row, int column) {
  if (row < 0 || column < 0) return;
  Do([=, control = control_] { return user::PickCell(static_cast<Grid&>(*control), row, column); });
}

void GridWidget::PickAt(const QPoint& point) {
  Pick(rowAt(point.y()), columnAt(point.x()));
}

bool GridWidget::OwnKey(QKeyEvent& event) {
  if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
  Pick(currentRow(), currentColumn());
  return true;
}

}  // namespace veldrin
