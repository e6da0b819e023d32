#include "view/user_input.h"

#include "tests/view/sample_window.h"
#include "view/bind.h"

#include <string>

namespace veldrin {
namespace {

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

TEST_F(UserInput, FocusHandlerThatDisablesTheControlEndsTheClick) {
  window.First.LostFocus.Bind([&](int) { window.Second.Enabled = false; });
  EXPECT_FALSE(user::Click(window.Second));
  EXPECT_EQ(Events().find("Second.Click"), std::string::npos);
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

TEST_F(UserInput, ArrowsAndBarsThatAreDisabledStay) {
  window.Arrows.Enabled = false;
  window.Bar.Enabled = false;
  Events();
  EXPECT_FALSE(user::Spin(window.Arrows, true));
  EXPECT_FALSE(user::ScrollTo(window.Bar, 60));
  EXPECT_EQ(window.Bar.Value.get(), 50);
  EXPECT_EQ(Events(), "");
}

}  // namespace
}  // namespace veldrin
