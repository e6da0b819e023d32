#include "desktop/controls/spin_widget.h"
#include "tests/desktop/event_counts.h"
#include "tests/desktop/test_window.h"

#include <QScrollBar>

namespace veldrin {
namespace {

using MouseTest = WidgetsTest;

TEST_F(MouseTest, ClickMovesTheFocusThenGoesDownUpAndClicks) {
  Click(form->Text1);
  events.clear();
  Click(form->Command1);
  EXPECT_EQ(events, (Events{"Text1.LostFocus", "Command1.GotFocus", "Command1.MouseDown", "Command1.MouseUp",
                            "Command1.Click"}));
  EXPECT_EQ(form->focus, &form->Command1);
  EXPECT_EQ(Widget().focusWidget(), &WidgetOf(form->Command1));
}

TEST_F(MouseTest, LeavingAButtonTakesThePressBack) {
  Press(form->Command1);
  events.clear();
  Release(form->Command1, {500, 0});
  EXPECT_EQ(events, Events{});
}

TEST_F(MouseTest, OtherControlsHearOfTheWayUpWhereverItIs) {
  Press(form->Picture1);
  Release(form->Picture1, {500, 0});
  EXPECT_EQ(events, (Events{"Picture1.MouseDown", "Picture1.MouseUp"}));
}

TEST_F(MouseTest, RightButtonDoesNotClick) {
  QWidget& button = WidgetOf(form->Command1);
  Mouse(button, QEvent::MouseButtonPress, {5, 5}, Qt::RightButton);
  Mouse(button, QEvent::MouseButtonRelease, {5, 5}, Qt::RightButton);
  EXPECT_EQ(events.back(), "Command1.MouseUp");
}

TEST_F(MouseTest, SecondButtonDoesNotTakeTheReleaseOfTheFirst) {
  for (Control* const control :
       {static_cast<Control*>(&form->Command1), static_cast<Control*>(&form->Picture1)}) {
    FocusOn(form->Command1);
    events.clear();
    QWidget& widget = WidgetOf(*control);
    Mouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton);
    Mouse(widget, QEvent::MouseButtonPress, {5, 5}, Qt::RightButton);
    Mouse(widget, QEvent::MouseButtonRelease, {5, 5}, Qt::RightButton);
    Mouse(widget, QEvent::MouseButtonRelease, {5, 5}, Qt::LeftButton);
    Mouse(widget, QEvent::MouseButtonRelease, {5, 5}, Qt::LeftButton);  // belongs to no press
    const std::string name = control->name;
    EXPECT_EQ(events, (Events{name + ".MouseDown", name + ".MouseDown", name + ".MouseUp", name + ".MouseUp",
                              name + ".Click"}));
  }
}

TEST_F(MouseTest, UnusedWheelIsHandedOnOnce) {
  EventCounts handedOn(Widget());
  form->Command2.Enabled = false;
  FocusOn(form->Text1);
  for (const Control* control : std::initializer_list<const Control*>{
           &form->Label1, &form->Command1, &form->Command2, &form->Text1, &form->Text3, &form->Combo1,
           &form->Combo2, &form->Grid1, &form->Option1[1]}) {
    handedOn.of.clear();
    Wheel(TargetOf(*control), -1);
    EXPECT_EQ(handedOn.of[QEvent::Wheel], 1) << control->IndexedName();
  }
}

TEST_F(MouseTest, ControlThatIsOffIsNotClickedAndNeitherIsWhatLiesAroundIt) {
  form->Option1[2].Enabled = false;
  Click(form->Option1[2]);
  EXPECT_EQ(events, Events{});
  EXPECT_FALSE(form->Option1[2].Value);
}

TEST_F(MouseTest, ControlInAPanelThatIsOffIsNotClicked) {
  form->Picture1.Enabled = false;
  Click(form->Option1[2]);
  EXPECT_EQ(events, Events{});
}

TEST_F(MouseTest, PressThatHidesItsOwnButtonGoesNoFurther) {
  Click(form->Text1);
  reactions["Text1.LostFocus"] = [this] { form->Command1.Visible = false; };
  events.clear();
  Click(form->Command1);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command1.Click"), 0);
}

TEST_F(MouseTest, OptionIsChosenOnceAndClearsTheOthers) {
  form->Option1[1].Value = true;
  events.clear();
  Click(form->Option1[2]);
  EXPECT_TRUE(form->Option1[2].Value);
  EXPECT_FALSE(form->Option1[1].Value);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Option1(2).Click"), 1);
  EXPECT_TRUE(*Widget().ViewOf(form->Option1[2])->WhatShows().chosen);
  EXPECT_FALSE(*Widget().ViewOf(form->Option1[1])->WhatShows().chosen);
  Click(form->Option1[2]);
  EXPECT_TRUE(*Widget().ViewOf(form->Option1[2])->WhatShows().chosen);
}

TEST_F(MouseTest, DoubleClickIsAClickThenDblClick) {
  QWidget& label = WidgetOf(form->Label1);
  Click(form->Label1);
  Mouse(label, QEvent::MouseButtonDblClick, {5, 5});
  Mouse(label, QEvent::MouseButtonRelease, {5, 5});
  EXPECT_EQ(events, (Events{"Label1.MouseDown", "Label1.MouseUp", "Label1.Click", "Label1.DblClick"}));
}

TEST_F(MouseTest, TwoQuickClicksOnAButtonAreTwo) {
  QWidget& button = WidgetOf(form->Command1);
  Click(form->Command1);
  Mouse(button, QEvent::MouseButtonDblClick, {5, 5});
  Mouse(button, QEvent::MouseButtonRelease, {5, 5});
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command1.Click"), 2);
}

TEST_F(MouseTest, SpinTurnsAtOnceRepeatsWhileHeldAndStopsOutside) {
  auto& spin = WidgetOf<SpinWidget>(form->Spin1);
  Mouse(spin, QEvent::MouseButtonPress, spin.ArrowRect(true).center());
  EXPECT_EQ(events, Events{"Spin1.SpinUp"});
  Wait(700);
  const std::size_t turned = events.size();
  EXPECT_GE(turned, 3U);
  Mouse(spin, QEvent::MouseMove, spin.ArrowRect(false).center());
  Wait(200);
  EXPECT_LE(events.size(), turned + 1);
  Mouse(spin, QEvent::MouseButtonRelease, spin.ArrowRect(false).center());
  const std::size_t stopped = events.size();
  Wait(200);
  EXPECT_EQ(events.size(), stopped);
}

TEST_F(MouseTest, SpinThatIsSwitchedOffByItsHandlerStops) {
  reactions["Spin1.SpinDown"] = [this] { form->Spin1.Enabled = false; };
  auto& spin = WidgetOf<SpinWidget>(form->Spin1);
  Mouse(spin, QEvent::MouseButtonPress, spin.ArrowRect(false).center());
  Wait(600);
  EXPECT_EQ(events, Events{"Spin1.SpinDown"});
}

TEST_F(MouseTest, WheelTurnsSpinButtonsAndScrollBars) {
  Wheel(WidgetOf(form->Spin1), 2);
  EXPECT_EQ(events, (Events{"Spin1.SpinUp", "Spin1.SpinUp"}));
  events.clear();
  Wheel(WidgetOf(form->HScroll1), -1);
  EXPECT_EQ(form->HScroll1.Value.get(), 45);
  EXPECT_EQ(events, Events{"HScroll1.Change"});
}

TEST_F(MouseTest, ThumbIsFollowedAndEndsHold) {
  WidgetOf<QScrollBar>(form->HScroll1).setValue(500);
  EXPECT_EQ(form->HScroll1.Value.get(), 100);
}

TEST_F(MouseTest, ThumbOfAValueBeyondTheEndsStandsAtTheEnd) {
  const auto& bar = WidgetOf<QScrollBar>(form->HScroll1);
  form->HScroll1.Value = 130;
  EXPECT_EQ(bar.value(), 100);
  form->HScroll1.Value = -30;
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(MouseTest, NewEndMovesTheThumbAloneAndTellsNothing) {
  const auto& bar = WidgetOf<QScrollBar>(form->HScroll1);
  form->HScroll1.Max = 30;
  EXPECT_EQ(bar.value(), 30);
  EXPECT_EQ(form->HScroll1.Value.get(), 50);
  form->HScroll1.Max = 100;
  EXPECT_EQ(bar.value(), 50);
  form->HScroll1.Min = 70;
  EXPECT_EQ(bar.value(), 70);
  EXPECT_EQ(form->HScroll1.Value.get(), 50);
  EXPECT_EQ(events, Events{});
}

TEST_F(MouseTest, BarAtItsEndIsNotMovedFurtherAndComesBackFromTheEnd) {
  form->HScroll1.Value = 160;
  events.clear();
  Wheel(WidgetOf(form->HScroll1), 1);
  EXPECT_EQ(form->HScroll1.Value.get(), 160);
  EXPECT_EQ(events, Events{});
  Wheel(WidgetOf(form->HScroll1), -1);
  EXPECT_EQ(form->HScroll1.Value.get(), 95);
  EXPECT_EQ(events, Events{"HScroll1.Change"});
}

TEST_F(MouseTest, ScrollBarThatTheProgramMovesTellsNothingBack) {
  form->HScroll1.Value = 60;
  EXPECT_EQ(events, Events{"HScroll1.Change"});
}

}  // namespace
}  // namespace veldrin
