#include "desktop/input/reach.h"
#include "tests/desktop/test_window.h"

#include <QClipboard>
#include <QComboBox>
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

TEST_F(KeyboardTest, KeysAloneFireTheirEventAndNothingElse) {
  Click(form->Command1);
  events.clear();
  stage.keysAlone = true;
  Key(Qt::Key_Return);
  stage.keysAlone = false;
  EXPECT_EQ(events, Events{"Command1.KeyDown"});
}

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

/// The program's own windows.
class ProgramKeysTest : public WidgetsTest {
 protected:
  /// A key to the window as a whole or to what has its focus.
  static void KeyTo(FormWidget& window, int key) {
    QWidget* const target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
  }

  static void Open(Window& window, bool modal) {
    window.LoadWindow();
    window.isModal = modal;
    if (modal) window.desk.modal.push_back(&window);
    window.Show();
  }
};

TEST_F(ProgramKeysTest, EscapeClosesAWindowWithoutCancel) {
  auto compare = std::make_shared<Form5>(program->desk);
  Open(*compare, false);
  KeyTo(*windows.FormOf(*compare), Qt::Key_Escape);
  EXPECT_FALSE(compare->loaded);

  auto about = std::make_shared<Form10>(program->desk);
  Open(*about, true);
  KeyTo(*windows.FormOf(*about), Qt::Key_Escape);
  EXPECT_FALSE(about->loaded);
}

TEST_F(ProgramKeysTest, EscapeClosesNoWindowThatHasCancelAndNeitherTheMainOneNorTheSplash) {
  auto compare = std::make_shared<Form5>(program->desk);
  Open(*compare, false);
  compare->Picture3.Visible = true;
  compare->Command5.Enabled = false;
  KeyTo(*windows.FormOf(*compare), Qt::Key_Escape);
  EXPECT_TRUE(compare->loaded);
  compare->UnloadWindow();

  auto splash = std::make_shared<Form1>(program->desk);
  Open(*splash, false);
  KeyTo(*windows.FormOf(*splash), Qt::Key_Escape);
  EXPECT_TRUE(splash->loaded);
  splash->UnloadWindow();

  Open(program->form2, false);
  KeyTo(*windows.FormOf(program->form2), Qt::Key_Escape);
  EXPECT_TRUE(program->form2.loaded);
}

TEST_F(ProgramKeysTest, EverythingThatAnswersInTheMainWindowIsReached) {
  Form2& form2 = program->form2;
  form2.Label12[0].Click.Bind([](int) {});
  form2.Label12[1].Click.Bind([](int) {});
  form2.Picture28.MouseUp.Bind([](int) {});
  Open(form2, false);
  for (Control* control : form2.controls) {
    if (control->kind != ControlKind::Menu) control->Enabled = true;
  }
  form2.Picture12.Visible = true;
  form2.HScroll2.Visible = true;
  FormWidget& window = *windows.FormOf(form2);
  windows.Settle();
  std::vector<std::string> way;
  do {
    KeyTo(window, Qt::Key_F6);
    const Control* reached = ReachedIn(window);
    way.push_back(reached == nullptr ? "" : reached->IndexedName());
  } while (!way.back().empty() && way.size() < 99);
  EXPECT_EQ(way, (Events{"Picture28", "Spin4", "Spin5", "Label12(1)", "Spin6(1)", "Spin6(2)", "Spin6(3)",
                         "Spin6(4)", "Spin6(5)", "Spin6(6)", "HScroll2", ""}))
      << "the head of a column answers nothing";
}

}  // namespace
}  // namespace veldrin
