#include "tests/desktop/test_window.h"

#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableWidget>

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

TEST_F(KeyboardTest, TypedTextIsAChangeForEachCharacter) {
  Click(form->Text1);
  events.clear();
  Type("12");
  EXPECT_EQ(form->Text1.Text.get(), "12");
  EXPECT_EQ(events, (Events{"Text1.KeyDown", "Text1.Change", "Text1.KeyDown", "Text1.Change"}));
}

TEST_F(KeyboardTest, BoxThatTheKeyboardComesToIsTypedOver) {
  form->Text2.Text = "250";
  Click(form->Text1);
  Key(Qt::Key_Tab);
  Type("90");
  EXPECT_EQ(form->Text2.Text.get(), "90");
}

TEST_F(KeyboardTest, ProgramThatEmptiesABoxAtAChangeHasItsWay) {
  reactions["Text1.Change"] = [this] {
    if (form->Text1.Text == "12") form->Text1.Text = "";
  };
  Click(form->Text1);
  Type("12");
  EXPECT_EQ(WidgetOf<QLineEdit>(form->Text1).text(), "");
  Type("3");
  EXPECT_EQ(form->Text1.Text.get(), "3");
}

TEST_F(KeyboardTest, InputMethodBringsJapaneseAndNothingBeforeItIsSettled) {
  Click(form->Text3);
  events.clear();
  QInputMethodEvent composing("あめ", {});
  QApplication::sendEvent(&WidgetOf(form->Text3), &composing);
  EXPECT_EQ(form->Text3.Text.get(), "");
  EXPECT_EQ(events, Events{});
  QInputMethodEvent settled;
  settled.setCommitString("雨");
  QApplication::sendEvent(&WidgetOf(form->Text3), &settled);
  EXPECT_EQ(form->Text3.Text.get(), "雨");
  EXPECT_EQ(events, Events{"Text3.Change"});
}

TEST_F(KeyboardTest, LinesEndAsTheProgramEndsThem) {
  form->Text3.Text = "a\r\nb";
  EXPECT_EQ(WidgetOf<QPlainTextEdit>(form->Text3).toPlainText(), "a\nb");
  Click(form->Text3);
  WidgetOf<QPlainTextEdit>(form->Text3).moveCursor(QTextCursor::End);
  Key(Qt::Key_Return, Qt::NoModifier, "\r");
  Type("c");
  EXPECT_EQ(form->Text3.Text.get(), "a\r\nb\r\nc");
}

TEST_F(KeyboardTest, CopyIsTheBoxesWhenTheUserHasSelectedAndTheMenusOtherwise) {
  form->Text1.Text = "120";
  Click(form->Text1);
  EXPECT_FALSE(KeepsKey(Qt::Key_C, Qt::ControlModifier));
  WidgetOf<QLineEdit>(form->Text1).setSelection(0, 2);
  EXPECT_TRUE(KeepsKey(Qt::Key_C, Qt::ControlModifier));
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "12");
  EXPECT_EQ(std::count(events.begin(), events.end(), "menu_b.Click"), 0);
}

TEST_F(KeyboardTest, WhatABoxSelectsByItselfIsNothingToCopy) {
  form->Text2.Text = "120";
  Click(form->Text1);
  Key(Qt::Key_Tab);
  EXPECT_EQ(WidgetOf<QLineEdit>(form->Text2).selectedText(), "120");
  EXPECT_FALSE(KeepsKey(Qt::Key_C, Qt::ControlModifier));
}

TEST_F(KeyboardTest, CutStaysInTheBoxAndUndoWhereThereIsSomethingToTakeBack) {
  Click(form->Text1);
  EXPECT_TRUE(KeepsKey(Qt::Key_X, Qt::ControlModifier));
  EXPECT_FALSE(KeepsKey(Qt::Key_Z, Qt::ControlModifier));
  Type("5");
  EXPECT_TRUE(KeepsKey(Qt::Key_Z, Qt::ControlModifier));
}

TEST_F(KeyboardTest, EditableComboIsTypedInAndPickedFrom) {
  auto& combo = WidgetOf<QComboBox>(form->Combo1);
  Click(form->Text1);
  combo.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(form->focus, &form->Combo1);
  events.clear();
  Type("x");
  EXPECT_EQ(form->Combo1.Text.get(), "x");
  EXPECT_EQ(events.back(), "Combo1.Change");
  combo.setCurrentIndex(1);
  Q_EMIT combo.activated(1);
  EXPECT_EQ(form->Combo1.Text.get(), "two");
  EXPECT_EQ(events.back(), "Combo1.Click");
}

TEST_F(KeyboardTest, EnterPicksTheCellThatTheArrowsWentTo) {
  form->Grid1.Cols = 2;
  form->Grid1.Rows = 3;
  form->Grid1.SetCell(1, 0, "here");
  Settle();
  auto& table = WidgetOf<QTableWidget>(form->Grid1);
  EXPECT_EQ(table.item(1, 0)->text(), "here");
  Click(form->Text1);
  table.setFocus(Qt::TabFocusReason);
  table.setCurrentCell(0, 0);
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(events.back(), "Grid1.Pick");
  EXPECT_EQ(form->Grid1.row, 1);
  EXPECT_EQ(form->Grid1.column, 0);
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
