#include "mainwin/gear_panel/gear_panel_lists.h"

#include "mainwin/gear_panel/gear_panel_steps.h"
#include "model/list_tables.h"
#include "view/bind.h"

#include <string>
#include <vector>

namespace veldrin {

namespace {

constexpr float kPairWidth = 500;  // twips
constexpr float kPairBorder = 30;  // of the panel around the cells
constexpr float kFinalWidth = 1000;

void ShowList(Picture& panel, Grid& grid) {
  panel.Visible = true;
  panel.BringToFront();
  SetFocus(grid);
}

std::string PickedText(const Grid& grid) {
  return grid.Cell(grid.row, grid.column);
}

// ---- Gear pairs ----

/// Texts of a gear's pairs in row order.
std::vector<std::string> PairTexts(const Workspace& workspace, int gear) {
  std::vector<std::string> texts;
  for (int row = workspace.GearFirstRow[gear]; row <= workspace.GearRows; ++row) {
    const std::string& text = workspace.GearTable(gear, row);
    if (text != kNoPair) texts.push_back(text);
  }
  return texts;
}

/// Element 0 is the column's head.
void Label12_Click(Program& program, int gear) {
  if (gear == 0) return;
  Workspace& workspace = program.workspace;
  Picture& panel = program.form2.Picture23[gear];
  Grid& grid = program.form2.Grid2[gear];
  const std::vector<std::string> texts = PairTexts(workspace, gear);
  const int count = static_cast<int>(texts.size());
  workspace.GearChoiceCount[gear] = static_cast<std::int16_t>(count);
  const float width = static_cast<float>(count) * kPairWidth;
  panel.Width = width + kPairBorder;
  grid.Width = width;
  grid.Cols = count;
  grid.Rows = 1;
  for (int column = 0; column < count; ++column) {
    grid.SetColWidth(column, kPairWidth);
    grid.SetCell(0, column, texts[static_cast<std::size_t>(column)]);
  }
  ShowList(panel, grid);
}

/// Kept: every row with the cell's text is taken, so of equal texts the last row wins; the label changes with
/// the first of them alone, and so the speeds shown are those of the first.
void Grid2_Pick(Program& program, int gear) {
  Workspace& workspace = program.workspace;
  const std::string text = PickedText(program.form2.Grid2[gear]);
  for (int row = workspace.GearFirstRow[gear]; row <= workspace.GearRows; ++row) {
    if (workspace.GearTable(gear, row) != text) continue;
    workspace.PlanIndex[gear] = static_cast<std::int16_t>(row);
    program.form2.Label12[gear].Caption = text;
  }
  TestForbiddenPair(program, gear);
  program.form2.Picture23[gear].Visible = false;
}

void Grid2_LostFocus(Program& program, int gear) {
  program.form2.Picture23[gear].Visible = false;
}

// ---- Final ratios ----

/// The last row of the table, the tallest, stands on top.
void Label8_Click(Program& program) {
  const Workspace& workspace = program.workspace;
  Grid& grid = program.form2.Grid1;
  const int count = FinalRowCount(workspace);
  grid.Cols = 1;
  grid.Rows = count;
  grid.SetColWidth(0, kFinalWidth);
  for (int row = 1; row <= count; ++row) grid.SetCell(count - row, 0, workspace.FinalTable[row].Text);
  ShowList(program.form2.Picture24, grid);
}

void TakeFinal(Program& program, const std::string& text) {
  Workspace& workspace = program.workspace;
  for (int row = 1; row <= FinalRowCount(workspace); ++row) {
    if (workspace.FinalTable[row].Text != text) continue;
    workspace.FinalIndex = static_cast<std::int16_t>(row);
    program.form2.Label8.Caption = text;
    return;
  }
}

/// Kept: the texts of rows 7 and 1 are rewritten as they stood after the sort.
void Grid1_Pick(Program& program) {
  Workspace& workspace = program.workspace;
  TakeFinal(program, PickedText(program.form2.Grid1));
  workspace.FinalTable[7].Text = workspace.FinalRow7Text;
  workspace.FinalTable[1].Text = workspace.FinalRow1Text;
  program.form2.Picture24.Visible = false;
}

void Grid1_LostFocus(Program& program) {
  program.form2.Picture24.Visible = false;
}

}  // namespace

void AttachGearPanelLists(Program& program) {
  Form2& form2 = program.form2;
  OnEach(program, form2.Label12, &Label::Click, Label12_Click);
  OnEach(program, form2.Grid2, &Grid::Pick, Grid2_Pick);
  OnEach(program, form2.Grid2, &Grid::LostFocus, Grid2_LostFocus);
  On(program, form2.Label8.Click, Label8_Click);
  On(program, form2.Grid1.Pick, Grid1_Pick);
  On(program, form2.Grid1.LostFocus, Grid1_LostFocus);
}

}  // namespace veldrin
