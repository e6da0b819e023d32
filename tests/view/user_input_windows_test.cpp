// Gestures on windows, and windows that stand in the way of gestures.
#include "tests/view/sample_window.h"
#include "view/bind.h"
#include "view/user_input.h"

namespace veldrin {
namespace {

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
