#include "view/grid.h"

#include "tests/view/told_desk.h"

#include <utility>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}
};

struct Grids : ToldDesk {
  Form form{desk};
};

TEST_F(Grids, AGridHasACellForEachRowAndColumn) {
  Grid grid("G", form, {});
  EXPECT_EQ(grid.Rows.get(), 1);
  EXPECT_EQ(grid.Cols.get(), 1);
  EXPECT_EQ(grid.Cell(0, 0), "");
  EXPECT_EQ(grid.ColWidth(0), 1000);
  EXPECT_EQ(grid.row, 0);
  EXPECT_EQ(grid.column, 0);
  grid.Rows = 3;
  grid.Cols = 2;
  grid.SetCell(2, 1, "last");
  grid.SetCell(0, 0, "first");
  EXPECT_EQ(grid.Cell(2, 1), "last");
  EXPECT_EQ(grid.Cell(2, 0), "");
  grid.Rows = 4;
  EXPECT_EQ(grid.Cell(2, 1), "last") << "what is there stays";
  EXPECT_EQ(grid.Cell(3, 1), "");
  grid.Rows = 1;
  EXPECT_EQ(grid.Cell(0, 0), "first");
  EXPECT_EQ(FaultOf([&] { grid.Cell(1, 0); }), kFaultSubscript);
  for (Slot<int>* const count : {&grid.Rows, &grid.Cols}) {
    grid.SetCell(0, 0, "first");
    *count = 0;
    *count = 1;
    EXPECT_EQ(grid.Cell(0, 0), "") << "what was taken away does not come back";
  }
  grid.Rows = -1;
  grid.Cols = -1;
  EXPECT_EQ(FaultOf([&] { grid.Cell(0, 0); }), kFaultSubscript);
  EXPECT_EQ(FaultOf([&] { grid.ColWidth(0); }), kFaultSubscript);
}

TEST_F(Grids, AGridHasNothingOutside) {
  Grid grid("G", form, {});
  grid.Rows = 2;
  grid.Cols = 3;
  EXPECT_EQ(FaultOf([&] { grid.Cell(1, 2); }), 0);
  for (const auto& [row, column] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 3}}) {
    EXPECT_EQ(FaultOf([&, r = row, c = column] { grid.Cell(r, c); }), kFaultSubscript)
        << row << "," << column;
    EXPECT_EQ(FaultOf([&, r = row, c = column] { grid.SetCell(r, c, "x"); }), kFaultSubscript);
  }
  for (const int column : {-1, 3}) {
    EXPECT_EQ(FaultOf([&] { grid.ColWidth(column); }), kFaultSubscript) << column;
    EXPECT_EQ(FaultOf([&] { grid.SetColWidth(column, 1); }), kFaultSubscript) << column;
  }
  EXPECT_EQ(FaultOf([&] { grid.SetColWidth(2, 450); }), 0);
  EXPECT_EQ(grid.ColWidth(2), 450);
  EXPECT_EQ(grid.ColWidth(1), 1000);
}

/// Keeps whether the last write of a cell or column changed something.
struct ChangedWindows : TellingWindows {
  using TellingWindows::TellingWindows;
  bool changed = false;
  void SlotWritten(Control& control, const char* slot, bool hasChanged) override {
    changed = hasChanged;
    TellingWindows::SlotWritten(control, slot, hasChanged);
  }
};

TEST_F(Grids, AGridTellsItsCellsAndColumns) {
  ChangedWindows watching(simulated);
  Machine other = MachineWith(simulated, watching);
  Desk itsDesk{other};
  Form itsForm(itsDesk);
  Grid grid("G", itsForm, {});
  grid.Cols = 2;
  watching.lines.str("");
  watching.tellsContent = true;
  grid.SetCell(0, 1, "12-30");
  EXPECT_EQ(watching.lines.str(), "write Form.G.Cell(0,1) \"12-30\"\ncontent Form.G\n");
  EXPECT_TRUE(watching.changed);
  grid.SetCell(0, 1, "12-30");
  EXPECT_FALSE(watching.changed);
  watching.lines.str("");
  grid.SetColWidth(1, 450);
  EXPECT_EQ(watching.lines.str(), "write Form.G.ColWidth(1) 450\ncontent Form.G\n");
  EXPECT_TRUE(watching.changed);
  grid.SetColWidth(1, 450);
  EXPECT_FALSE(watching.changed);
}

}  // namespace
}  // namespace veldrin
