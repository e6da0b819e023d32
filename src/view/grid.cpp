#include "view/grid.h"

#include "runtime/fault.h"
#include "view/window.h"

#include <algorithm>

namespace veldrin {

namespace {

void KeepUpShape(Control& control) {
  As<Grid>(control).Shape();
}

}  // namespace

Grid::Grid(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::Grid, name, parent, place, look),
      Cols(*this, "Cols", 1, nullptr, nullptr, KeepUpShape),
      Rows(*this, "Rows", 1, nullptr, nullptr, KeepUpShape) {
  Have(Cols, Rows);
  Shape();
}

const std::string& Grid::Cell(int cellRow, int cellColumn) const {
  if (cellRow < 0 || cellRow >= Rows || cellColumn < 0 || cellColumn >= Cols) Raise(kFaultSubscript);
  return cells_[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellColumn)];
}

void Grid::SetCell(int cellRow, int cellColumn, const std::string& text) {
  const bool changed = Cell(cellRow, cellColumn) != text;
  cells_[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellColumn)] = text;
  TellElementWritten("Cell", std::to_string(cellRow) + "," + std::to_string(cellColumn), changed);
}

float Grid::ColWidth(int cellColumn) const {
  if (cellColumn < 0 || cellColumn >= Cols) Raise(kFaultSubscript);
  return widths_[static_cast<std::size_t>(cellColumn)];
}

void Grid::SetColWidth(int cellColumn, float width) {
  const bool changed = ColWidth(cellColumn) != width;
  widths_[static_cast<std::size_t>(cellColumn)] = width;
  TellElementWritten("ColWidth", std::to_string(cellColumn), changed);
}

void Grid::TellElementWritten(const char* slot, const std::string& element, bool changed) {
  TellWritten(*this, (slot + ("(" + element + ")")).c_str(), changed);
  window.desk.machine.windows.ContentChanged(*this);
}

void Grid::Shape() {
  const auto columns = static_cast<std::size_t>(std::max(0, Cols.get()));
  cells_.resize(static_cast<std::size_t>(std::max(0, Rows.get())));
  for (auto& cells : cells_) cells.resize(columns);
  widths_.resize(columns, 1000);
}

}  // namespace veldrin
