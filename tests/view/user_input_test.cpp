#include "view/user_input.h"

#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "view/bind.h"

#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

/// A window with one control of each kind that a gesture is for.
struct Sample : Window {
  explicit Sample(Desk& theDesk, const char* windowName = "Sample")
      : Window(theDesk, windowName, {0, 0, 9000, 6000}, {}) {}

  Picture Panel{"Panel", *this, {0, 0, 4000, 4000}};
  Button First{"First", Panel, {0, 0, 900, 300}};
  Button Second{"Second", *this, {0, 0, 900, 300}};
  TextBox Box{"Box", *this, {0, 0, 900, 300}, {.caption = "ab"}};
  Label Text{"Text", *this, {0, 0, 900, 300}};
  OptionButton One{"One", *this, {0, 0, 900, 300}};
  OptionButton Two{"Two", *this, {0, 0, 900, 300}};
  SpinButton Arrows{"Arrows", *this, {0, 0, 900, 300}};
  ScrollBar Bar{"Bar", *this, {0, 0, 900, 300}, {0, 100, 50, 1, 10}};
  ComboBox Combo{"Combo", *this, {0, 0, 900, 300}, {}, {"x", "y"}};
  ComboBox Fixed{"Fixed", *this, {0, 0, 900, 300}, {}, {"x", "y"}, false};
  DriveBox Drives{"Drives", *this, {0, 0, 900, 300}};
  FolderBox Folders{"Folders", *this, {0, 0, 900, 300}};
  FileBox Names{"Names", *this, {0, 0, 900, 300}};
  Grid Cells{"Cells", *this, {0, 0, 900, 300}};
  Menu Entry{"Entry", *this, "Entry"};
  Menu Inner{"Inner", Entry, "Inner"};
};

struct UserInput : ::testing::Test {
  UserInput() {
    machine.files.AddFile("C:\\VELDRIN\\A.RAT", "");
    machine.files.AddFile("C:\\VELDRIN\\B.RAT", "");
    window.Names.Refresh();
    window.Show();
    machine.windows.trace = &trace;
  }

  /// The events since the last time, without their window's name.
  std::string Events() {
    std::istringstream lines(trace.str());
    std::string events;
    for (std::string line; std::getline(lines, line);) {
      const std::string head = "event Sample.";
      if (line.rfind(head, 0) == 0) events += (events.empty() ? "" : " ") + line.substr(head.size());
    }
    trace.str("");
    return events;
  }

  SimulatedMachine machine;
  std::ostringstream trace;
  Desk desk{machine.machine};
  Sample window{desk};
};

TEST_F(UserInput, FirstControlHasTheFocusAtFirst) {
  EXPECT_EQ(window.focus, &window.First);
}

TEST_F(UserInput, ClickMovesTheFocusFirst) {
  EXPECT_TRUE(user::Click(window.Second));
  EXPECT_EQ(Events(), "First.LostFocus Second.GotFocus Second.MouseDown Second.MouseUp Second.Click");
  EXPECT_TRUE(user::Click(window.Second));
  EXPECT_EQ(Events(), "Second.MouseDown Second.MouseUp Second.Click");
}

TEST_F(UserInput, ButtonsAreToldByMouseEventsAlone) {
  int down = -1;
  int up = -1;
  int click = -1;
  window.Second.MouseDown.Bind([&](int argument) { down = argument; });
  window.Second.MouseUp.Bind([&](int argument) { up = argument; });
  window.Second.Click.Bind([&](int argument) { click = argument; });
  EXPECT_TRUE(user::Click(window.Second));
  EXPECT_EQ(down, kLeftButton);
  EXPECT_EQ(up, kLeftButton);
  EXPECT_EQ(click, 0);
}

TEST_F(UserInput, RightButtonClicksNothing) {
  int button = 0;
  window.Second.MouseUp.Bind([&](int argument) { button = argument; });
  EXPECT_TRUE(user::Click(window.Second, kRightButton));
  EXPECT_EQ(Events(), "First.LostFocus Second.GotFocus Second.MouseDown Second.MouseUp");
  EXPECT_EQ(button, kRightButton);
  EXPECT_TRUE(user::Click(window.One, kRightButton));
  EXPECT_FALSE(window.One.Value);
}

TEST_F(UserInput, LabelsAndPicturesLeaveTheFocus) {
  EXPECT_TRUE(user::Click(window.Text));
  EXPECT_EQ(Events(), "Text.MouseDown Text.MouseUp Text.Click");
  EXPECT_TRUE(user::DoubleClick(window.Panel));
  EXPECT_EQ(Events(), "Panel.MouseDown Panel.MouseUp Panel.Click Panel.DblClick");
  EXPECT_EQ(window.focus, &window.First);
}

TEST_F(UserInput, MenuEntryKnowsClickAlone) {
  EXPECT_TRUE(user::Click(window.Inner));
  EXPECT_EQ(Events(), "Inner.Click");
  window.Entry.Enabled = false;
  EXPECT_FALSE(user::Click(window.Inner));
}

TEST_F(UserInput, OptionIsSetAndClicksOnce) {
  EXPECT_TRUE(user::Click(window.One));
  EXPECT_EQ(Events(), "First.LostFocus One.GotFocus One.MouseDown One.MouseUp One.Click");
  EXPECT_TRUE(window.One.Value);
  EXPECT_TRUE(user::Click(window.One));
  EXPECT_EQ(Events(), "One.MouseDown One.MouseUp One.Click");
  EXPECT_TRUE(user::Click(window.Two));
  EXPECT_FALSE(window.One.Value);
}

TEST_F(UserInput, WhatCannotBeReachedStaysAsItIs) {
  window.Panel.Enabled = false;
  Events();
  EXPECT_FALSE(user::Click(window.First));
  window.Panel.Enabled = true;
  window.Panel.Visible = false;
  Events();
  EXPECT_FALSE(user::Click(window.First));
  window.Second.Enabled = false;
  EXPECT_FALSE(user::Click(window.Second));
  window.Hide();
  Events();
  EXPECT_FALSE(user::Click(window.Two));
  EXPECT_FALSE(user::Resize(window, 100, 100));
  EXPECT_EQ(Events(), "");
}

TEST_F(UserInput, ControlBehindAModalWindowCannotBeReached) {
  Sample other(desk, "Other");
  bool behind = true;
  bool inFront = false;
  machine.windows.modalLoop = [&](Window& modal) {
    behind = user::Click(window.Second);
    inFront = user::Click(other.Second);
    modal.Hide();
  };
  other.ShowModal();
  EXPECT_FALSE(behind);
  EXPECT_TRUE(inFront);
  EXPECT_TRUE(user::Click(window.Second));
}

TEST_F(UserInput, FocusHandlerThatDisablesTheControlEndsTheClick) {
  window.First.LostFocus.Bind([&](int) { window.Second.Enabled = false; });
  EXPECT_FALSE(user::Click(window.Second));
  EXPECT_EQ(Events().find("Second.Click"), std::string::npos);
}

TEST_F(UserInput, WindowThatIsNotActiveBecomesItFirst) {
  window.LoseActivity();
  Events();
  EXPECT_TRUE(user::Click(window.Text));
  EXPECT_EQ(Events(), "Activate Text.MouseDown Text.MouseUp Text.Click");
  EXPECT_TRUE(user::Deactivate(window));
  EXPECT_TRUE(user::Activate(window));
  EXPECT_TRUE(user::Activate(window));
  EXPECT_EQ(Events(), "Deactivate Activate");
}

TEST_F(UserInput, KeyGoesToTheControlWithTheFocus) {
  int key = 0;
  window.Box.KeyDown.Bind([&](int argument) { key = argument; });
  EXPECT_TRUE(user::PressKey(window.Box, kKeyEnter));
  EXPECT_EQ(Events(), "First.LostFocus Box.GotFocus Box.KeyDown");
  EXPECT_EQ(key, kKeyEnter);
  EXPECT_EQ(window.Box.Text, "ab");
  EXPECT_FALSE(user::PressKey(window.Text, kKeyEnter));
}

TEST_F(UserInput, EnteredTextIsOneChange) {
  EXPECT_TRUE(user::EnterText(window.Box, "xyz"));
  EXPECT_EQ(Events(), "First.LostFocus Box.GotFocus Box.Change");
  EXPECT_TRUE(user::EnterText(window.Box, "xyz"));
  EXPECT_EQ(Events(), "");
  EXPECT_TRUE(user::EnterText(window.Combo, "free"));
  EXPECT_EQ(window.Combo.Text, "free");
  EXPECT_FALSE(user::EnterText(window.Fixed, "free"));
}

TEST_F(UserInput, TypedTextIsAChangeForEachCharacter) {
  EXPECT_TRUE(user::TypeText(window.Box, "cぃ\r\n"));
  EXPECT_EQ(Events(), "First.LostFocus Box.GotFocus Box.Change Box.Change Box.Change");
  EXPECT_EQ(window.Box.Text, "abcぃ\r\n");
}

TEST_F(UserInput, TypingStopsWhereTheBoxGoesOutOfReach) {
  window.Box.Change.Bind([&](int) { window.Box.Enabled = window.Box.Text.get().size() < 4; });
  EXPECT_TRUE(user::TypeText(window.Box, "cdef"));
  EXPECT_EQ(window.Box.Text, "abcd");
}

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

TEST_F(UserInput, SpinButtonsAndScrollBarsLeaveTheFocus) {
  EXPECT_TRUE(user::Spin(window.Arrows, true));
  EXPECT_TRUE(user::Spin(window.Arrows, false));
  EXPECT_EQ(Events(), "Arrows.SpinUp Arrows.SpinDown");
  EXPECT_TRUE(user::ScrollTo(window.Bar, 1000));
  EXPECT_EQ(window.Bar.Value.get(), 100);
  EXPECT_TRUE(user::ScrollTo(window.Bar, 100));
  EXPECT_EQ(Events(), "Bar.Change");
  EXPECT_EQ(window.focus, &window.First);
}

TEST_F(UserInput, ScrollBarKeepsWhatCodeWritesBeyondItsEnds) {
  window.Bar.Value = 130;
  EXPECT_EQ(window.Bar.Value.get(), 130);
  EXPECT_EQ(window.Bar.Thumb(), 100);
  window.Bar.Value = 130;
  EXPECT_EQ(Events(), "Bar.Change");
  window.Bar.Value = -5;
  EXPECT_EQ(window.Bar.Value.get(), -5);
  EXPECT_EQ(window.Bar.Thumb(), 0);
}

TEST_F(UserInput, NewEndsLeaveTheValueOfAScrollBar) {
  window.Bar.Max = 40;
  EXPECT_EQ(window.Bar.Thumb(), 40);
  window.Bar.Max = 100;
  window.Bar.Min = 60;
  EXPECT_EQ(window.Bar.Thumb(), 60);
  window.Bar.Max = 55;
  EXPECT_EQ(window.Bar.Thumb(), 60) << "ends that have changed sides";
  EXPECT_EQ(window.Bar.Value.get(), 50);
  EXPECT_EQ(Events(), "");
}

TEST_F(UserInput, ScrollBarBeyondItsEndsIsBroughtWithinThem) {
  window.Bar.Value = 130;
  EXPECT_TRUE(user::ScrollTo(window.Bar, 1000));
  EXPECT_EQ(window.Bar.Value.get(), 100);
  EXPECT_TRUE(user::ScrollTo(window.Bar, -1));
  EXPECT_EQ(window.Bar.Value.get(), 0);
  EXPECT_EQ(Events(), "Bar.Change Bar.Change Bar.Change");
}

TEST_F(UserInput, WindowsAreSizedMovedAndPutAway) {
  EXPECT_TRUE(user::Resize(window, 5000, 4000));
  EXPECT_EQ(Events(), "Resize");
  EXPECT_TRUE(user::Move(window, 10, 20));
  EXPECT_EQ(window.Left.get(), 10);
  EXPECT_EQ(window.Top.get(), 20);
  EXPECT_TRUE(user::SetState(window, 1));
  EXPECT_EQ(Events(), "Resize");
}

TEST_F(UserInput, CloseAsksAndMayBeRefused) {
  int reason = -1;
  window.QueryUnload.Bind([&](int argument) {
    reason = argument;
    window.closeRefused = argument == static_cast<int>(CloseReason::User);
  });
  EXPECT_TRUE(user::Close(window, CloseReason::User));
  EXPECT_EQ(reason, static_cast<int>(CloseReason::User));
  EXPECT_TRUE(window.loaded);
  window.Hide();
  EXPECT_FALSE(user::Close(window, CloseReason::User));
  EXPECT_TRUE(user::Close(window, CloseReason::SessionEnd));
  EXPECT_EQ(reason, static_cast<int>(CloseReason::SessionEnd));
  EXPECT_FALSE(window.loaded);
}

TEST_F(UserInput, DoubleClickEndsWhereTheClickPutsTheControlOutOfReach) {
  window.Text.Click.Bind([&](int) { window.Text.Enabled = false; });
  EXPECT_TRUE(user::DoubleClick(window.Text));
  EXPECT_EQ(Events(), "Text.MouseDown Text.MouseUp Text.Click");
  window.Panel.Click.Bind([&](int) { window.Hide(); });
  EXPECT_TRUE(user::DoubleClick(window.Panel));
  EXPECT_EQ(Events().find("DblClick"), std::string::npos);
  EXPECT_FALSE(user::DoubleClick(window.Panel));
  EXPECT_EQ(Events(), "");
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

TEST_F(UserInput, WindowsAreReachedWhileTheyShowAndNothingModalIsInFront) {
  EXPECT_TRUE(user::Reachable(window));
  EXPECT_TRUE(user::Reachable(window.First));
  window.Enabled = false;
  EXPECT_FALSE(user::Reachable(window));
  EXPECT_FALSE(user::Reachable(window.First));
  window.Enabled = true;
  Sample other(desk, "Other");
  EXPECT_FALSE(user::Reachable(other));
  other.LoadWindow();
  EXPECT_FALSE(user::Reachable(other)) << "loaded, but hidden";
  window.Hide();
  EXPECT_FALSE(user::Reachable(window));
  Sample unloaded(desk, "Unloaded");
  unloaded.Visible = true;
  EXPECT_FALSE(user::Reachable(unloaded)) << "shown, but never loaded";
}

TEST_F(UserInput, WindowThatHidesWhenItBecomesActiveEndsTheGesture) {
  window.LoseActivity();
  window.Activate.Bind([&](int) { window.Hide(); });
  Events();
  EXPECT_FALSE(user::Click(window.Second));
  EXPECT_EQ(Events(), "Activate Deactivate");
  EXPECT_EQ(window.focus, &window.First);
}

TEST_F(UserInput, FocusHandlerThatHidesTheWindowEndsEveryGesture) {
  window.First.LostFocus.Bind([&](int) { window.Hide(); });
  EXPECT_FALSE(user::EnterText(window.Box, "x"));
  EXPECT_EQ(window.Box.Text, "ab");
  const auto again = [&] {
    window.Show();
    window.MoveFocus(&window.First);
    Events();
  };
  again();
  EXPECT_FALSE(user::TypeText(window.Box, "x"));
  again();
  EXPECT_FALSE(user::PressKey(window.Box, kKeyEnter));
  again();
  EXPECT_FALSE(user::SelectEntry(window.Combo, "y"));
  again();
  EXPECT_FALSE(user::OpenFolder(window.Folders, "C:\\VELDRIN\\LIST"));
  again();
  EXPECT_FALSE(user::HighlightFolder(window.Folders, "LIST"));
  again();
  EXPECT_FALSE(user::PickCell(window.Cells, 0, 0));
  again();
  EXPECT_FALSE(user::Focus(window.Second));
  EXPECT_EQ(window.Box.Text, "ab");
  EXPECT_EQ(window.Combo.ListIndex.get(), -1);
  EXPECT_EQ(window.Folders.ListIndex.get(), -1);
  EXPECT_EQ(window.Folders.Path, "C:\\VELDRIN");
}

TEST_F(UserInput, FocusGoesToWhatCanHaveIt) {
  EXPECT_TRUE(user::Focus(window.Second));
  EXPECT_EQ(Events(), "First.LostFocus Second.GotFocus");
  EXPECT_FALSE(user::Focus(window.Text));
  EXPECT_FALSE(user::Focus(window.Bar));
  window.Box.Enabled = false;
  EXPECT_FALSE(user::Focus(window.Box));
  EXPECT_EQ(window.focus, &window.Second);
}

TEST_F(UserInput, TextGoesIntoBoxesAndEditableCombos) {
  EXPECT_TRUE(user::TakesText(window.Box));
  EXPECT_TRUE(user::TakesText(window.Combo));
  EXPECT_FALSE(user::TakesText(window.Fixed));
  EXPECT_FALSE(user::TakesText(window.First));
  EXPECT_FALSE(user::EnterText(window.First, "x"));
  EXPECT_FALSE(user::TypeText(window.Fixed, "x"));
  EXPECT_EQ(Events(), "") << "not even the focus moves";
  EXPECT_TRUE(user::TypeText(window.Combo, "xy"));
  EXPECT_EQ(window.Combo.Text, "xy");
  EXPECT_EQ(Events(), "First.LostFocus Combo.GotFocus Combo.Change Combo.Change");
}

TEST_F(UserInput, ALineEndOfOneCharacterIsOneChangeToo) {
  window.Box.Text = "";
  Events();
  EXPECT_TRUE(user::TypeText(window.Box, "\r\ra\n\r"));
  EXPECT_EQ(window.Box.Text, "\r\ra\n\r");
  EXPECT_EQ(Events(), "First.LostFocus Box.GotFocus Box.Change Box.Change Box.Change Box.Change Box.Change");
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

TEST_F(UserInput, ArrowsAndBarsThatAreDisabledStay) {
  window.Arrows.Enabled = false;
  window.Bar.Enabled = false;
  Events();
  EXPECT_FALSE(user::Spin(window.Arrows, true));
  EXPECT_FALSE(user::ScrollTo(window.Bar, 60));
  EXPECT_EQ(window.Bar.Value.get(), 50);
  EXPECT_EQ(Events(), "");
}

TEST_F(UserInput, WindowsOutOfReachStayAsTheyAre) {
  window.Enabled = false;
  EXPECT_FALSE(user::Resize(window, 100, 200));
  EXPECT_FALSE(user::Move(window, 100, 200));
  EXPECT_FALSE(user::SetState(window, 1));
  EXPECT_FALSE(user::Close(window, CloseReason::User));
  EXPECT_FALSE(user::Activate(window));
  EXPECT_EQ(window.Width.get(), 9000);
  EXPECT_EQ(window.Left.get(), 0);
  EXPECT_EQ(window.WindowState.get(), 0);
  EXPECT_TRUE(window.loaded);
}

TEST_F(UserInput, DeactivationNeedsAWindowThatShows) {
  Sample other(desk, "Other");
  EXPECT_FALSE(user::Deactivate(other));
  other.LoadWindow();
  EXPECT_FALSE(user::Deactivate(other));
  window.Enabled = false;
  EXPECT_TRUE(user::Deactivate(window)) << "whether or not it can be reached";
  EXPECT_EQ(Events(), "Deactivate");
  EXPECT_FALSE(user::Close(other, CloseReason::User));
  EXPECT_TRUE(user::Close(other, CloseReason::SessionEnd));
  EXPECT_FALSE(user::Close(other, CloseReason::SessionEnd)) << "no longer there";
}

}  // namespace
}  // namespace veldrin
