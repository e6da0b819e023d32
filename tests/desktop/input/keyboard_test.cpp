// Keys that move the focus and press buttons.
#include "tests/desktop/test_window.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using KeyboardTest = WidgetsTest;

TEST_F(KeyboardTest, TabGoesThroughTheControlsInTheOrderOfTheScreen) {
  Click(form->Text1);
  std::vector<std::string> way;
  for (int i = 0; i < 9; ++i) {
    Key(Qt::Key_Tab);
    way.push_back(form->focus->IndexedName());
    EXPECT_EQ(Widget().focusWidget(), &WidgetOf(*form->focus));
  }
  EXPECT_EQ(way, (std::vector<std::string>{"Text2", "Text3", "Command1", "Command2", "Option1(1)",
                                           "Option1(2)", "Option1(3)", "Combo1", "Combo2"}));
}

TEST_F(KeyboardTest, ShiftTabGoesBackAndRoundTheEnd) {
  Click(form->Text1);
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(form->focus, &form->Grid1);
}

TEST_F(KeyboardTest, TabPassesWhatIsOffAndAllOptionsButTheChosenOne) {
  form->Text2.Enabled = false;
  form->Text3.Visible = false;
  form->Command1.Enabled = false;
  form->Command2.Enabled = false;
  form->Option1[2].Value = true;
  Click(form->Text1);
  Key(Qt::Key_Tab);
  EXPECT_EQ(form->focus, &form->Option1[2]);
  Key(Qt::Key_Tab);
  EXPECT_EQ(form->focus, &form->Combo1);
}

TEST_F(KeyboardTest, SpaceAndEnterPressAButtonWithTheEventsOfTheMouse) {
  Click(form->Command1);
  events.clear();
  Key(Qt::Key_Space);
  EXPECT_EQ(events, (Events{"Command1.KeyDown", "Command1.MouseDown", "Command1.MouseUp", "Command1.Click"}));
  events.clear();
  Key(Qt::Key_Return);
  EXPECT_EQ(events.back(), "Command1.Click");
}

TEST_F(KeyboardTest, MenuKeyAndShiftF10PressAButtonWithTheRightOne) {
  for (Control* const button :
       {static_cast<Control*>(&form->Command1), static_cast<Control*>(&form->Option1[2])}) {
    const std::string name = button->IndexedName();
    Click(*button);
    events.clear();
    Key(Qt::Key_Menu);
    EXPECT_EQ(events, (Events{name + ".MouseDown", name + ".MouseUp"}));
    events.clear();
    Key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(events, (Events{name + ".KeyDown", name + ".MouseDown", name + ".MouseUp"}));
    events.clear();
    Key(Qt::Key_F10);
    Key(Qt::Key_Menu, Qt::ControlModifier);
    EXPECT_EQ(std::count(events.begin(), events.end(), name + ".MouseDown"), 0);
  }
}

TEST_F(KeyboardTest, HeldMenuKeyPressesOnce) {
  Click(form->Command1);
  events.clear();
  Key(Qt::Key_Menu);
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier, {}, true);
  QApplication::sendEvent(&WidgetOf(form->Command1), &again);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command1.MouseDown"), 1);
}

TEST_F(KeyboardTest, KeysOfShortcutsPressNothing) {
  form->Option1[1].Value = true;
  for (Control* const button :
       {static_cast<Control*>(&form->Command1), static_cast<Control*>(&form->Option1[2])}) {
    FocusOn(*button);
    events.clear();
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
      for (const auto modifier :
           {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        Key(key, modifier);
        QKeyEvent up(QEvent::KeyRelease, key, modifier);
        QApplication::sendEvent(&WidgetOf(*button), &up);
      }
    }
    EXPECT_EQ(events, Events(12, button->IndexedName() + ".KeyDown"));
    EXPECT_FALSE(form->Option1[2].Value);
  }
  Key(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_TRUE(form->Option1[2].Value);
}

TEST_F(KeyboardTest, EveryKeyThatWritesFiresItsEvent) {
  Click(form->Text1);
  for (const auto& [key, modifiers, text] :
       std::initializer_list<std::tuple<int, Qt::KeyboardModifiers, QString>>{
           {Qt::Key_Minus, Qt::NoModifier, "-"},
           {Qt::Key_Exclam, Qt::ShiftModifier, "!"},
           {Qt::Key_Udiaeresis, Qt::NoModifier, "ü"},
           {Qt::Key_unknown, Qt::NoModifier, "雨"}}) {
    events.clear();
    Key(key, modifiers, text);
    EXPECT_EQ(events, (Events{"Text1.KeyDown", "Text1.Change"})) << text.toStdString();
  }
}

TEST_F(KeyboardTest, KeyThatMovesTheFocusDoesNothingElse) {
  reactions["Command1.KeyDown"] = [this] { SetFocus(form->Text1); };
  Click(form->Command1);
  events.clear();
  Key(Qt::Key_Return);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command1.Click"), 0);
  EXPECT_EQ(Widget().focusWidget(), &WidgetOf(form->Text1));
}

TEST_F(KeyboardTest, EscapePressesCancel) {
  Click(form->Text1);
  events.clear();
  Key(Qt::Key_Escape);
  EXPECT_EQ(events.back(), "Command2.Click");
  form->Command2.Enabled = false;
  events.clear();
  Key(Qt::Key_Escape);
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command2.Click"), 0);
}

TEST_F(KeyboardTest, ArrowsWalkThroughTheOptionsOfAPanel) {
  form->Option1[1].Value = true;
  Click(form->Option1[1]);
  Key(Qt::Key_Down);
  EXPECT_TRUE(form->Option1[2].Value);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  EXPECT_TRUE(form->Option1[3].Value);
  EXPECT_EQ(form->focus, &form->Option1[3]);
  Key(Qt::Key_Up);
  EXPECT_TRUE(form->Option1[2].Value);
}

TEST_F(KeyboardTest, KeysAloneFireTheirEventAndNothingElse) {
  Click(form->Command1);
  events.clear();
  stage.keysAlone = true;
  Key(Qt::Key_Return);
  stage.keysAlone = false;
  EXPECT_EQ(events, Events{"Command1.KeyDown"});
}

}  // namespace
}  // namespace veldrin
