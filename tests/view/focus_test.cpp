// Which control has a window's focus, and where it goes when that can keep it no longer.
#include "tests/view/told_desk.h"
#include "view/grid.h"
#include "view/list_boxes.h"

#include <utility>
#include <vector>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}

  Label Title{"Title", *this, {0, 0, 900, 300}};
  Button Off{"Off", *this, {0, 0, 900, 300}, {.enabled = false}};
  Button Away{"Away", *this, {0, 0, 900, 300}, {.visible = false}};
  Button First{"First", *this, {0, 0, 900, 300}};
  Picture Panel{"Panel", *this, {0, 0, 4000, 4000}};
  Picture Inside{"Inside", Panel, {0, 0, 4000, 4000}};
  TextBox Box{"Box", Inside, {0, 0, 900, 300}};
  SpinButton Arrows{"Arrows", *this, {0, 0, 900, 300}};
  Button Last{"Last", *this, {0, 0, 900, 300}};
};

struct WindowFocus : ToldDesk {
  Form form{desk};
};

TEST_F(WindowFocus, GoesToTheFirstThatCanHaveItWhenTheWindowIsShown) {
  form.Show();
  EXPECT_EQ(form.focus, &form.First);
  EXPECT_EQ(Told(),
            "loaded Form\nevent Form.Load\nwrite Form.Visible True\nevent Form.Activate\n"
            "event Form.First.GotFocus\n");
}

TEST_F(WindowFocus, StaysWhileItsWindowIsHidden) {
  form.Show();
  SetFocus(form.Box);
  form.Hide();
  Forget();
  form.Show();
  EXPECT_EQ(form.focus, &form.Box);
  EXPECT_EQ(Told(), "write Form.Visible True\nevent Form.Activate\n");
}

TEST_F(WindowFocus, IsNobodysInAWindowWithoutTakers) {
  for (Control* control : {&form.First, &form.Last}) control->Enabled = false;
  form.Box.Visible = false;
  form.Show();
  EXPECT_EQ(form.focus, nullptr);
  form.Hide();
  form.Last.Enabled = true;
  EXPECT_EQ(form.focus, nullptr);
  form.Show();
  EXPECT_EQ(form.focus, &form.Last);
}

TEST_F(WindowFocus, GivenBeforeTheWindowIsShownStays) {
  SetFocus(form.Last);
  form.Show();
  EXPECT_EQ(form.focus, &form.Last);
}

TEST_F(WindowFocus, IsLostByOneBeforeTheOtherGetsIt) {
  form.Show();
  Forget();
  windows.tellsContent = true;
  form.First.LostFocus.Bind([&](int) { EXPECT_EQ(form.focus, &form.Last); });
  SetFocus(form.Last);
  EXPECT_EQ(Told(), "content Form\nevent Form.First.LostFocus\nevent Form.Last.GotFocus\n");
  SetFocus(form.Last);
  EXPECT_EQ(Told(), "");
}

TEST_F(WindowFocus, IsNotTakenByWhatCannotHaveIt) {
  form.Show();
  Forget();
  form.Panel.Enabled = false;
  Control* const refusing[] = {&form.Title, &form.Off, &form.Away, &form.Panel, &form.Box, &form.Arrows};
  Forget();
  for (Control* control : refusing) SetFocus(*control);
  EXPECT_EQ(Told(), "");
  EXPECT_EQ(form.focus, &form.First);
}

TEST_F(WindowFocus, TakenFromEverybodyIsOnlyLost) {
  form.Show();
  Forget();
  form.MoveFocus(nullptr);
  EXPECT_EQ(Told(), "event Form.First.LostFocus\n");
  EXPECT_EQ(form.focus, nullptr);
  SetFocus(form.Last);
  EXPECT_EQ(Told(), "event Form.Last.GotFocus\n");
}

TEST_F(WindowFocus, GoesToTheNextWhenItsOwnerIsHidden) {
  form.Show();
  Forget();
  form.First.Visible = false;
  EXPECT_EQ(Told(), "write Form.First.Visible False\nevent Form.First.LostFocus\nevent Form.Box.GotFocus\n");
  EXPECT_EQ(form.focus, &form.Box);
}

TEST_F(WindowFocus, GoesToTheNextWhenItsOwnerIsDisabled) {
  form.Show();
  Forget();
  form.First.Enabled = false;
  EXPECT_EQ(Told(), "write Form.First.Enabled False\nevent Form.First.LostFocus\nevent Form.Box.GotFocus\n");
}

TEST_F(WindowFocus, GoesOnWhenAPanelAroundItsOwnerGoes) {
  form.Show();
  SetFocus(form.Box);
  form.Panel.Visible = false;
  EXPECT_EQ(form.focus, &form.Last);
  form.Panel.Visible = true;
  EXPECT_EQ(form.focus, &form.Last) << "and does not come back";
  SetFocus(form.Box);
  form.Inside.Enabled = false;
  EXPECT_EQ(form.focus, &form.Last);
}

TEST_F(WindowFocus, BeginsAgainAtTheFirstBehindTheLast) {
  form.Show();
  SetFocus(form.Last);
  form.Last.Visible = false;
  EXPECT_EQ(form.focus, &form.First);
}

TEST_F(WindowFocus, GoesToNobodyWhenNobodyIsLeft) {
  form.Show();
  form.Panel.Enabled = false;
  form.Last.Enabled = false;
  Forget();
  form.First.Enabled = false;
  EXPECT_EQ(Told(), "write Form.First.Enabled False\nevent Form.First.LostFocus\n");
  EXPECT_EQ(form.focus, nullptr);
}

TEST_F(WindowFocus, StaysWhenOthersChange) {
  form.Show();
  SetFocus(form.Box);
  Forget();
  form.First.Enabled = false;
  form.Last.Visible = false;
  form.Off.Enabled = true;
  form.Panel.Enabled = true;
  EXPECT_EQ(Told(),
            "write Form.First.Enabled False\nwrite Form.Last.Visible False\nwrite Form.Off.Enabled True\n"
            "write Form.Panel.Enabled True\n");
  EXPECT_EQ(form.focus, &form.Box);
}

TEST_F(WindowFocus, MovedInsideLostFocusStaysWhereThatPutIt) {
  form.Show();
  bool gotIt = false;
  form.Box.GotFocus.Bind([&](int) { gotIt = true; });
  form.First.LostFocus.Bind([&](int) { SetFocus(form.Last); });
  SetFocus(form.Box);
  EXPECT_EQ(form.focus, &form.Last);
  EXPECT_FALSE(gotIt);
}

TEST_F(WindowFocus, HandedOnInsideLostFocusSkipsTheOneThatWasMeant) {
  form.Show();
  bool gotIt = false;
  form.Box.GotFocus.Bind([&](int) { gotIt = true; });
  form.First.LostFocus.Bind([&](int) { form.Box.Enabled = false; });
  SetFocus(form.Box);
  EXPECT_EQ(form.focus, &form.Last);
  EXPECT_FALSE(gotIt);
}

TEST_F(WindowFocus, IsForBoxesButtonsListsAndGrids) {
  Form panel(desk);
  OptionButton option("Option", panel, {});
  ScrollBar bar("Bar", panel, {}, {0, 10, 0, 1, 1});
  TimerControl timer("Timer", panel, 10);
  Menu menu("Menu", panel, "Menu");
  Line line("Line", panel, 0, 0, 1, 1);
  Grid grid("Grid", panel, {});
  ComboBox combo("Combo", panel, {});
  DriveBox drives("Drives", panel, {});
  FolderBox folders("Folders", panel, {});
  FileBox files("Files", panel, {});
  Dialog dialog("Dialog", panel);
  const std::vector<std::pair<const Control*, bool>> takers = {
      {&panel, false},  {&panel.Title, false}, {&panel.Panel, false}, {&panel.Arrows, false},
      {&bar, false},    {&timer, false},       {&menu, false},        {&line, false},
      {&dialog, false}, {&panel.Box, true},    {&panel.First, true},  {&option, true},
      {&grid, true},    {&combo, true},        {&drives, true},       {&folders, true},
      {&files, true},
  };
  for (const auto& [control, takes] : takers) EXPECT_EQ(TakesFocus(*control), takes) << control->name;
}

TEST_F(WindowFocus, UsableIsWhatIsVisibleAndEnabledWithAllAroundItInItsWindow) {
  EXPECT_TRUE(IsUsable(form.Box)) << "whether or not the window shows";
  form.Inside.Visible = false;
  EXPECT_FALSE(IsUsable(form.Box));
  form.Inside.Visible = true;
  form.Panel.Enabled = false;
  EXPECT_FALSE(IsUsable(form.Box));
  EXPECT_FALSE(IsUsable(form.Panel));
  EXPECT_TRUE(IsUsable(form.First));
  EXPECT_TRUE(IsUsable(form));
}

}  // namespace
}  // namespace veldrin
