#include "desktop/controls/combo_widget.h"

#include "tests/desktop/test_window.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace veldrin {
namespace {

class ComboWidgetTest : public WidgetsTest {
 protected:
  ComboWidgetTest() {
    FocusOn(form->Combo1);
    events.clear();
  }

  ComboWidget& Combo() { return WidgetOf<ComboWidget>(form->Combo1); }
  QLineEdit& Line() { return *Combo().lineEdit(); }
  const std::string& Text() const { return form->Combo1.Text; }

  /// Where the line draws its cursor, what is being composed included.
  int CursorAcross() { return Line().inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x(); }

  void Pick(int entry) {
    form->Combo1.ListIndex = entry;
    Settle();
    events.clear();
  }

  long Count(const std::string& event) const { return std::count(events.begin(), events.end(), event); }
};

TEST_F(ComboWidgetTest, AClickIntoTheTextGivesTheFocusAndTheCursor) {
  Type("abcd");
  FocusOn(form->Command1);
  events.clear();
  ASSERT_FALSE(Line().hasFocus());
  Line().setCursorPosition(2);
  const QPoint behindTwo = Line().inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  Line().setCursorPosition(0);
  Mouse(Line(), QEvent::MouseButtonPress, behindTwo);
  Mouse(Line(), QEvent::MouseButtonRelease, behindTwo);
  EXPECT_EQ(form->focus, &form->Combo1);
  EXPECT_TRUE(Combo().hasFocus());
  EXPECT_EQ(events, (Events{"Command1.LostFocus", "Combo1.GotFocus"}));
  EXPECT_FALSE(Line().hasSelectedText());
  EXPECT_EQ(Line().cursorPosition(), 2);
  Type("x");
  EXPECT_EQ(Text(), "abxcd");
}

TEST_F(ComboWidgetTest, AClickIntoTheTextOfAWindowThatDoesNotAnswerDoesNothing) {
  Type("abcd");
  FocusOn(form->Command1);
  form->Enabled = false;
  Mouse(Line(), QEvent::MouseButtonPress, QPoint(1, 5));
  Mouse(Line(), QEvent::MouseButtonRelease, QPoint(1, 5));
  EXPECT_EQ(form->focus, &form->Command1);
  form->Enabled = true;
}

TEST_F(ComboWidgetTest, TypingInTheMiddleStaysThere) {
  Type("abcd");
  Line().setCursorPosition(1);
  Type("x");
  EXPECT_EQ(Line().cursorPosition(), 2);
  Type("y");
  EXPECT_EQ(Text(), "axybcd");
  EXPECT_EQ(Line().text(), "axybcd");
}

TEST_F(ComboWidgetTest, BackspaceInTheMiddleStaysThere) {
  Type("abcd");
  Line().setCursorPosition(2);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Text(), "cd");
  EXPECT_EQ(Line().cursorPosition(), 0);
}

TEST_F(ComboWidgetTest, WhatWasTypedIsTakenBack) {
  Type("ab");
  Line().setCursorPosition(1);
  Type("x");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "ab");
  EXPECT_EQ(Line().cursorPosition(), 1);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "");
}

TEST_F(ComboWidgetTest, EachCharacterIsOneChange) {
  Type("ab");
  EXPECT_EQ(events, (Events{"Combo1.KeyDown", "Combo1.Change", "Combo1.KeyDown", "Combo1.Change"}));
}

TEST_F(ComboWidgetTest, AnInputMethodGoesOnBehindAClauseThatIsSettled) {
  Type("ab");
  Line().setCursorPosition(0);
  Compose("", "WWW");
  Compose("c", "WWW");
  EXPECT_EQ(Text(), "cab");
  EXPECT_EQ(Line().text(), "cab");
  EXPECT_EQ(Line().cursorPosition(), 1);
  const int composing = CursorAcross();
  Compose("", "");
  EXPECT_GT(composing, CursorAcross()) << "the next clause is still there";
  EXPECT_EQ(Count("Combo1.Change"), 3);
}

TEST_F(ComboWidgetTest, APickedEntryIsEditedInPlace) {
  Pick(1);
  Line().setCursorPosition(1);
  Type("x");
  EXPECT_EQ(Text(), "txwo");
  EXPECT_EQ(Line().text(), "txwo");
  EXPECT_EQ(Line().cursorPosition(), 2);
  EXPECT_EQ(form->Combo1.ListIndex.get(), -1);
  EXPECT_EQ(Combo().currentIndex(), -1);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "two");
  EXPECT_EQ(Line().cursorPosition(), 1);
  EXPECT_EQ(Count("Combo1.Click"), 0);
}

TEST_F(ComboWidgetTest, AnInputMethodGoesOnWhereItBeganInAPickedEntry) {
  Pick(1);
  Line().setCursorPosition(0);
  Compose("", "WWW");
  Compose("c", "WWW");
  EXPECT_EQ(Text(), "ctwo");
  EXPECT_EQ(Line().cursorPosition(), 1);
  const int composing = CursorAcross();
  Compose("", "");
  EXPECT_GT(composing, CursorAcross());
}

TEST_F(ComboWidgetTest, DownPicksTheFirstEntryBehindTypingIntoAPickedOne) {
  Pick(1);
  Type("x");
  Key(Qt::Key_Down);
  EXPECT_EQ(Text(), "one");
  EXPECT_EQ(form->Combo1.ListIndex.get(), 0);
  EXPECT_EQ(Line().text(), "one");
  EXPECT_EQ(events.back(), "Combo1.Click");
}

TEST_F(ComboWidgetTest, TheListOpensBehindTypingIntoAPickedEntry) {
  Pick(1);
  Type("x");
  Combo().showPopup();
  QCoreApplication::processEvents();
  EXPECT_NE(Combo().view()->currentIndex().row(), 1);
  Combo().hidePopup();
  EXPECT_EQ(Combo().itemText(1), "two");
  EXPECT_EQ(Combo().count(), 3);
}

TEST_F(ComboWidgetTest, WhatTheProgramWritesAtAChangeShows) {
  reactions["Combo1.Change"] = [this] {
    if (Text() == "b") form->Combo1.ListIndex = 2;
  };
  Type("b");
  EXPECT_EQ(Line().text(), "three");
  EXPECT_EQ(Combo().currentIndex(), 2);
  reactions["Combo1.Change"] = [this] {
    if (Text() != "") form->Combo1.Text = "";
  };
  Line().end(false);
  Type("c");
  EXPECT_EQ(Line().text(), "");
  EXPECT_EQ(Combo().currentIndex(), -1);
}

TEST_F(ComboWidgetTest, OneThatTheKeyboardComesToIsTypedOver) {
  form->Combo1.Text = "old";
  for (const bool forward : {true, false}) {
    FocusOn(forward ? static_cast<Control&>(form->Option1[3]) : form->Combo2);
    forward ? Key(Qt::Key_Tab) : Key(Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_EQ(form->focus, &form->Combo1);
    EXPECT_EQ(Line().selectedText(), Line().text());
    Type(forward ? "new" : "x");
    EXPECT_EQ(Text(), forward ? "new" : "x");
  }
}

TEST_F(ComboWidgetTest, OneThatTheProgramGoesToIsTypedOver) {
  form->Combo1.Text = "old";
  FocusOn(form->Text1);
  FocusOn(form->Combo1);
  Type("new");
  EXPECT_EQ(Text(), "new");
}

TEST_F(ComboWidgetTest, PointerAndReturnOfTheWindowSelectNothing) {
  form->Combo1.Text = "old";
  for (const auto reason : {Qt::MouseFocusReason, Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    FocusOn(form->Text1);
    Line().deselect();
    Combo().setFocus(reason);
    ASSERT_EQ(form->focus, &form->Combo1);
    EXPECT_EQ(Line().selectedText(), "") << reason;
  }
}

TEST_F(ComboWidgetTest, TypingTheTextOfAnEntryPicksNothing) {
  for (const QString typed : {"two", "TWO"}) {
    FocusOn(form->Text1);
    FocusOn(form->Combo1);
    Type(typed);
    events.clear();
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(&Combo(), &out);
    Key(Qt::Key_Return, Qt::NoModifier, "\r");
    EXPECT_EQ(events, Events{"Combo1.KeyDown"});
    EXPECT_EQ(Text(), typed.toStdString());
    EXPECT_EQ(form->Combo1.ListIndex.get(), -1);
    FocusOn(form->Text1);
    EXPECT_EQ(Count("Combo1.Click"), 0);
    EXPECT_EQ(Combo().currentIndex(), -1);
  }
}

TEST_F(ComboWidgetTest, ListKeysAndWheelPick) {
  Combo().showPopup();
  QCoreApplication::processEvents();
  Combo().view()->setCurrentIndex(Combo().model()->index(1, 0));
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(Combo().view(), &enter);
  EXPECT_EQ(Text(), "two");
  EXPECT_EQ(events, Events{"Combo1.Click"});
  Wheel(Combo(), -1);
  EXPECT_EQ(Text(), "three");
  Key(Qt::Key_Up);
  EXPECT_EQ(Text(), "two");
  EXPECT_EQ(Count("Combo1.Click"), 3);
}

}  // namespace
}  // namespace veldrin
