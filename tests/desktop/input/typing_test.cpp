// Texts that are typed, brought by an input method, cut and copied.
#include "tests/desktop/test_window.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <gtest/gtest.h>

#include <algorithm>

namespace veldrin {
namespace {

using KeyboardTest = WidgetsTest;

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
  Compose("", "あめ");
  EXPECT_EQ(form->Text3.Text.get(), "");
  EXPECT_EQ(events, Events{});
  Compose("雨", "");
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

}  // namespace
}  // namespace veldrin
