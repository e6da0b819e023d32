// A table of texts.
#pragma once

#include "view/controls.h"

#include <string>
#include <vector>

namespace veldrin {

/// Cells of text in rows and columns, counted from 0.
struct Grid : FocusControl {
  Grid(const char* name, Control& parent, const Place& place, const Look& look = {});

  Slot<int> Cols;
  Slot<int> Rows;
  Event Click{*this, "Click"};
  /// A cell was picked; row and column hold its place.
  Event Pick{*this, "Pick"};
  int row = 0;
  int column = 0;

  /// Text of a cell, empty where nothing was written. Raises fault 9 outside.
  const std::string& Cell(int cellRow, int cellColumn) const;
  void SetCell(int cellRow, int cellColumn, const std::string& text);
  /// Width of a column in twips.
  float ColWidth(int cellColumn) const;
  void SetColWidth(int cellColumn, float width);

  /// Makes room for Rows times Cols cells; called by their writes.
  void Shape();

 private:
  /// Tells the front end of a cell or a column's width.
  void TellElementWritten(const char* slot, const std::string& element, bool changed);

  std::vector<std::vector<std::string>> cells_;
  std::vector<float> widths_;
};

}  // namespace veldrin
