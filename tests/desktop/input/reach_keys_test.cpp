// F6 and the keys that go with it.
#include "desktop/input/reach.h"
#include "tests/desktop/test_window.h"

#include <QComboBox>
#include <QLineEdit>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace veldrin {
namespace {

/// The way to what only the mouse works. In this window that is Label1, Picture1, Spin1 and HScroll1.
class ReachTest : public WidgetsTest {
 protected:
  ReachTest() { Start(form->Text1); }

  void Start(const Control& control) {
    Click(control);
    events.clear();
  }

  std::string Reached() const {
    const Control* control = ReachedIn(*windows.FormOf(*form));
    return control == nullptr ? "" : control->IndexedName();
  }

  std::string Forth() {
    Key(Qt::Key_F6);
    return Reached();
  }

  std::string Back() {
    Key(Qt::Key_F6, Qt::ShiftModifier);
    return Reached();
  }

  void Reach(const std::string& name) {
    for (int i = 0; i < 5 && Reached() != name; ++i) Back();
    ASSERT_EQ(Reached(), name);
    events.clear();
  }
};

TEST_F(ReachTest, F6GoesThroughWhatOnlyTheMouseWorksAndLetsGoBehindTheLast) {
  form->Spin1.Top = 1050;  // in another row than the focus
  EXPECT_EQ(Reached(), "");
  std::vector<std::string> way;
  for (int i = 0; i < 6; ++i) way.push_back(Forth());
  EXPECT_EQ(way, (Events{"Label1", "Picture1", "Spin1", "HScroll1", "", "Label1"}));
  way.clear();
  for (int i = 0; i < 6; ++i) way.push_back(Back());
  EXPECT_EQ(way, (Events{"", "HScroll1", "Spin1", "Picture1", "Label1", ""}));
}

TEST_F(ReachTest, F6BeginsInTheRowOfTheFocus) {
  EXPECT_EQ(Forth(), "Spin1");
  Key(Qt::Key_Escape);
  Start(form->Text2);
  EXPECT_EQ(Forth(), "Label1");
}

TEST_F(ReachTest, FocusOfTheProgramStaysAndItsKeyEventComesAsBefore) {
  Key(Qt::Key_F6);
  EXPECT_EQ(form->focus, &form->Text1);
  EXPECT_EQ(Widget().focusWidget(), &WidgetOf(form->Text1));
  EXPECT_EQ(events, Events{"Text1.KeyDown"});
}

TEST_F(ReachTest, F6PassesWhatIsOffHiddenCoveredOrDeafToClicks) {
  form->Spin1.Enabled = false;
  form->Label1.Visible = false;
  form->HScroll1.Top = form->Grid1.Top.get();
  form->HScroll1.Height = 300;
  form->Grid1.BringToFront();
  Settle();
  EXPECT_EQ(Forth(), "Picture1");
  EXPECT_EQ(Forth(), "");
  EXPECT_FALSE(OnlyForTheMouse(form->Text1));
  Label deaf("Label9", *form, {0, 0, 100, 100});
  EXPECT_FALSE(OnlyForTheMouse(deaf));
  std::erase(form->controls, &deaf);
  std::erase(form->children, &deaf);
}

TEST_F(ReachTest, ArrowsTurnASpinButtonAndTheProgramsOwnControlDoesNotHearThem) {
  Reach("Spin1");
  for (const auto key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left}) Key(key);
  EXPECT_EQ(events, (Events{"Spin1.SpinUp", "Spin1.SpinUp", "Spin1.SpinDown", "Spin1.SpinDown"}));
  events.clear();
  Key(Qt::Key_Return);
  Key(Qt::Key_Space, Qt::NoModifier, " ");
  EXPECT_EQ(events, Events{});
}

TEST_F(ReachTest, KeysMoveAScrollBar) {
  Reach("HScroll1");
  const std::pair<int, int> kSteps[] = {{Qt::Key_Right, 55}, {Qt::Key_Up, 60},     {Qt::Key_Left, 55},
                                        {Qt::Key_Down, 50},  {Qt::Key_PageUp, 70}, {Qt::Key_PageDown, 50},
                                        {Qt::Key_End, 100},  {Qt::Key_Home, 0}};
  for (const auto& [key, value] : kSteps) {
    Key(key);
    EXPECT_EQ(form->HScroll1.Value.get(), value);
  }
}

TEST_F(ReachTest, KeysTowardTheEndLeaveAValueBeyondIt) {
  Reach("HScroll1");
  form->HScroll1.Value = 160;
  for (const auto key : {Qt::Key_Right, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_End}) {
    Key(key);
    EXPECT_EQ(form->HScroll1.Value.get(), 160);
  }
  Key(Qt::Key_Left);
  EXPECT_EQ(form->HScroll1.Value.get(), 95);
}

TEST_F(ReachTest, SpaceClicksEnterClicksTwiceAndTheMenuKeyWithTheRightButton) {
  Reach("Label1");
  Key(Qt::Key_Space, Qt::NoModifier, " ");
  EXPECT_EQ(events, (Events{"Label1.MouseDown", "Label1.MouseUp", "Label1.Click"}));
  events.clear();
  Key(Qt::Key_Return);
  EXPECT_EQ(events, (Events{"Label1.MouseDown", "Label1.MouseUp", "Label1.Click", "Label1.DblClick"}));
  Reach("Picture1");
  Key(Qt::Key_Menu);
  EXPECT_EQ(events, (Events{"Picture1.MouseDown", "Picture1.MouseUp"}));
  EXPECT_EQ(Reached(), "Picture1");
}

TEST_F(ReachTest, EscapeLetsGoAndPressesCancelTheSecondTime) {
  Reach("Spin1");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Reached(), "");
  EXPECT_EQ(events, Events{});
  Key(Qt::Key_Escape);
  EXPECT_EQ(events.back(), "Command2.Click");
}

TEST_F(ReachTest, OtherKeysLetGoAndDoWhatTheyAlwaysDo) {
  Reach("Spin1");
  Key(Qt::Key_Shift);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Reached(), "Spin1");
  Type("5");
  EXPECT_EQ(Reached(), "");
  EXPECT_EQ(form->Text1.Text.get(), "5");
  Reach("Spin1");
  Key(Qt::Key_Tab);
  EXPECT_EQ(Reached(), "");
  EXPECT_EQ(form->focus, &form->Text2);
}

TEST_F(ReachTest, MouseLetsGo) {
  Reach("Spin1");
  Press(form->HScroll1);
  EXPECT_EQ(Reached(), "");
  Release(form->HScroll1);
}

TEST_F(ReachTest, WhatIsPutOutOfReachIsLetGo) {
  Reach("Spin1");
  form->Spin1.Enabled = false;
  EXPECT_EQ(Reached(), "");
  Reach("Picture1");
  form->Picture1.Visible = false;
  EXPECT_EQ(Reached(), "");
  reactions["Label1.Click"] = [this] { form->Label1.Visible = false; };
  Reach("Label1");
  Key(Qt::Key_Space, Qt::NoModifier, " ");
  EXPECT_EQ(Reached(), "");
}

TEST_F(ReachTest, ListThatALabelOpensHasTheKeysWhileItIsOpen) {
  form->Grid1.Visible = false;
  form->Grid1.Cols = 1;
  form->Grid1.Rows = 3;
  reactions["Label1.Click"] = [this] {
    form->Grid1.Visible = true;
    SetFocus(form->Grid1);
  };
  reactions["Grid1.Pick"] = [this] { form->Grid1.Visible = false; };
  reactions["Grid1.LostFocus"] = [this] { form->Grid1.Visible = false; };
  Reach("Label1");
  Key(Qt::Key_Space, Qt::NoModifier, " ");
  EXPECT_EQ(form->focus, &form->Grid1);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_F6);
  Key(Qt::Key_Return);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Grid1.Pick"), 1);
  EXPECT_EQ(form->Grid1.row, 2);
  EXPECT_FALSE(form->Grid1.Visible);
  EXPECT_EQ(Reached(), "Label1") << "the next list is a key away";
  Key(Qt::Key_Space, Qt::NoModifier, " ");
  EXPECT_TRUE(form->Grid1.Visible);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(form->Grid1.Visible);
  EXPECT_EQ(Reached(), "Label1");
}

TEST_F(ReachTest, RingIsDrawnAroundAndFollows) {
  for (const double factor : {1.0, 2.0}) {
    stage.zoom.Set(factor);
    const QImage before = Widget().grab().toImage();
    Reach("Spin1");
    form->Spin1.Left = 3000;
    form->Spin1.Left = 3600;
    const QImage after = Widget().grab().toImage();
    const QRect spin(WidgetOf(form->Spin1).mapTo(&Widget(), QPoint()), WidgetOf(form->Spin1).size());
    EXPECT_NE(before.copy(spin.adjusted(-4, -4, 4, 4)), after.copy(spin.adjusted(-4, -4, 4, 4)));
    EXPECT_EQ(before.copy(spin), after.copy(spin)) << "what is inside stays to be seen";
    Key(Qt::Key_Escape);
    EXPECT_EQ(before, Widget().grab().toImage());
  }
}

TEST_F(ReachTest, KeysAloneReachNothing) {
  stage.keysAlone = true;
  EXPECT_EQ(Forth(), "");
  stage.keysAlone = false;
}

TEST_F(ReachTest, WindowWithoutFocusIsServedToo) {
  form->MoveFocus(nullptr);
  Settle();
  events.clear();
  Widget().setFocus();
  EXPECT_EQ(Forth(), "Label1");
  Key(Qt::Key_Space);
  EXPECT_EQ(events.back(), "Label1.Click");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Reached(), "");
}

}  // namespace
}  // namespace veldrin
