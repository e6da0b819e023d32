// Picking from lists and grids.
#include "runtime/fault.h"
#include "tests/view/sample_window.h"
#include "view/user_input.h"

#include <string>
#include <utility>

namespace veldrin {
namespace {

TEST_F(UserInput, PickedEntryClicks) {
  EXPECT_TRUE(user::SelectEntry(window.Combo, "y"));
  EXPECT_EQ(Events(), "First.LostFocus Combo.GotFocus Combo.Click");
  EXPECT_EQ(window.Combo.Text, "y");
  EXPECT_TRUE(user::SelectEntry(window.Combo, "Y"));
  EXPECT_EQ(Events(), "Combo.Click");
  EXPECT_FALSE(user::SelectEntry(window.Combo, "z"));
  EXPECT_EQ(window.Combo.Text, "y");
}

TEST_F(UserInput, PickedFileClicksAndDoubleClicksOnlyWhenAsked) {
  EXPECT_TRUE(user::SelectEntry(window.Names, "B.RAT"));
  EXPECT_EQ(Events(), "First.LostFocus Names.GotFocus Names.Click");
  EXPECT_EQ(window.Names.FileName, "B.RAT");
  EXPECT_TRUE(user::DoubleClickEntry(window.Names, "A.RAT"));
  EXPECT_EQ(Events(), "Names.Click Names.Click Names.DblClick");
  EXPECT_EQ(window.Names.FileName, "A.RAT");
  EXPECT_FALSE(user::DoubleClickEntry(window.Names, "C.RAT"));
}

TEST_F(UserInput, DriveIsPickedByItsName) {
  EXPECT_TRUE(user::SelectEntry(window.Drives, "D:"));
  EXPECT_EQ(window.Drives.Drive, "D:");
  EXPECT_EQ(Events(), "First.LostFocus Drives.GotFocus Drives.Change");
}

TEST_F(UserInput, FolderIsOpenedOrHighlighted) {
  EXPECT_TRUE(user::HighlightFolder(window.Folders, "LIST"));
  EXPECT_EQ(window.Folders.entries[static_cast<std::size_t>(window.Folders.ListIndex.get())],
            "C:\\VELDRIN\\LIST");
  EXPECT_TRUE(user::HighlightFolder(window.Folders, "C:\\VELDRIN\\DAT"));
  EXPECT_EQ(window.Folders.ListIndex.get(), 0);
  EXPECT_TRUE(user::HighlightFolder(window.Folders, "C:\\VELDRIN"));
  EXPECT_EQ(window.Folders.ListIndex.get(), -1);
  EXPECT_FALSE(user::HighlightFolder(window.Folders, "NONE"));
  EXPECT_EQ(window.Folders.Path, "C:\\VELDRIN");
  EXPECT_TRUE(user::OpenFolder(window.Folders, "C:\\VELDRIN\\LIST"));
  EXPECT_EQ(window.Folders.Path, "C:\\VELDRIN\\LIST");
  EXPECT_FALSE(user::OpenFolder(window.Folders, "C:\\NONE"));
  EXPECT_EQ(window.Folders.Path, "C:\\VELDRIN\\LIST");
}

/// A machine with a folder that is there but denies itself.
struct ClosedFolder : SimulatedFiles {
  std::string ResolveFolder(const std::string& path) const override {
    if (path == "C:\\VELDRIN\\DAT") Raise(kFaultPathAccess);
    return SimulatedFiles::ResolveFolder(path);
  }
};

TEST_F(UserInput, FolderThatDeniesItselfIsNotOpened) {
  ClosedFolder files;
  files.SetCurrentFolder("C:\\VELDRIN");
  Machine other = MachineWith(machine, files);
  Desk itsDesk{other};
  Sample its{itsDesk};
  its.Show();
  EXPECT_TRUE(files.FolderExists("C:\\VELDRIN\\DAT"));
  EXPECT_FALSE(user::OpenFolder(its.Folders, "C:\\VELDRIN\\DAT"));
  EXPECT_EQ(its.Folders.Path, "C:\\VELDRIN");
}

TEST_F(UserInput, CellIsPickedInsideOfTheGrid) {
  window.Cells.Rows = 2;
  window.Cells.Cols = 3;
  EXPECT_TRUE(user::PickCell(window.Cells, 1, 2));
  EXPECT_EQ(Events(), "First.LostFocus Cells.GotFocus Cells.Pick");
  EXPECT_EQ(window.Cells.row, 1);
  EXPECT_EQ(window.Cells.column, 2);
  EXPECT_FALSE(user::PickCell(window.Cells, 2, 0));
  EXPECT_FALSE(user::PickCell(window.Cells, 0, -1));
}

TEST_F(UserInput, DoubleClickOfAFileEndsWhereItIsOutOfReach) {
  window.Names.Enabled = false;
  Events();
  EXPECT_FALSE(user::DoubleClickEntry(window.Names, "A.RAT"));
  EXPECT_EQ(Events(), "");
  window.Names.Enabled = true;
  window.Names.Click.Bind([&](int) { window.Names.Enabled = false; });
  EXPECT_TRUE(user::DoubleClickEntry(window.Names, "A.RAT")) << "it was picked";
  EXPECT_EQ(Events(), "First.LostFocus Names.GotFocus Names.Click Names.LostFocus Cells.GotFocus");
}

TEST_F(UserInput, TheEntryAsWrittenGoesBeforeOneThatDiffersInCase) {
  window.Combo.AddItem("X");
  EXPECT_TRUE(user::SelectEntry(window.Combo, "X"));
  EXPECT_EQ(window.Combo.ListIndex.get(), 2);
  EXPECT_TRUE(user::SelectEntry(window.Combo, "x"));
  EXPECT_EQ(window.Combo.ListIndex.get(), 0);
}

TEST_F(UserInput, DrivesArePickedInAnyCase) {
  EXPECT_TRUE(user::SelectEntry(window.Drives, "d:"));
  EXPECT_EQ(window.Drives.Drive, "D:");
  EXPECT_FALSE(user::SelectEntry(window.Drives, "E:"));
  EXPECT_EQ(window.Drives.Drive, "D:");
  EXPECT_FALSE(user::SelectEntry(window.Second, "x")) << "no list";
}

TEST_F(UserInput, AFolderIsHighlightedInAnyCase) {
  EXPECT_TRUE(user::HighlightFolder(window.Folders, "list"));
  EXPECT_EQ(window.Folders.ListIndex.get(), 1);
  EXPECT_TRUE(user::HighlightFolder(window.Folders, "c:\\veldrin\\dat"));
  EXPECT_EQ(window.Folders.ListIndex.get(), 0);
  EXPECT_TRUE(user::HighlightFolder(window.Folders, "c:\\veldrin"));
  EXPECT_EQ(window.Folders.ListIndex.get(), -1);
}

TEST_F(UserInput, TheFirstAndTheLastCellCanBePicked) {
  window.Cells.Rows = 2;
  window.Cells.Cols = 3;
  EXPECT_TRUE(user::PickCell(window.Cells, 0, 0));
  EXPECT_TRUE(user::PickCell(window.Cells, 1, 2));
  window.Cells.Pick.Bind([&](int) {
    EXPECT_EQ(window.Cells.row, 1);
    EXPECT_EQ(window.Cells.column, 0);
  });
  EXPECT_TRUE(user::PickCell(window.Cells, 1, 0));
  for (const auto& [row, column] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 3}}) {
    EXPECT_FALSE(user::PickCell(window.Cells, row, column)) << row << "," << column;
  }
  EXPECT_EQ(window.Cells.row, 1);
  EXPECT_EQ(window.Cells.column, 0);
}

}  // namespace
}  // namespace veldrin
