// What a screen reader hears of the widgets themselves, and what it does with them.
#include "desktop/accessible/accessible_control.h"
#include "tests/desktop/test_window.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QComboBox>
#include <QLineEdit>

namespace veldrin {
namespace {

/// Qt asks while widgets are made, and keeps what it hears.
struct WithAccess {
  WithAccess() { InstallAccessibleControls(); }
};

class AccessibleWidgetsTest : WithAccess, public WidgetsTest {
 protected:
  QAccessibleInterface& AccessOf(const Control& control) {
    return *QAccessible::queryAccessibleInterface(&WidgetOf(control));
  }

  QString NameOf(const Control& control) { return AccessOf(control).text(QAccessible::Name); }

  void Act(const Control& control, const QString& action) {
    AccessOf(control).actionInterface()->doAction(action);
    Wait(200);  // Qt shows the button pressed for a while
  }

  long Count(const std::string& event) const { return std::count(events.begin(), events.end(), event); }
};

TEST_F(AccessibleWidgetsTest, PressOfAButtonIsAClickWithAllItsEvents) {
  Click(form->Text1);
  events.clear();
  Act(form->Command1, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(events, (Events{"Text1.LostFocus", "Command1.GotFocus", "Command1.MouseDown", "Command1.MouseUp",
                            "Command1.Click"}));
}

TEST_F(AccessibleWidgetsTest, MouseAndKeysStillClickOnce) {
  Click(form->Command1);
  Key(Qt::Key_Space);
  Wait(200);
  EXPECT_EQ(Count("Command1.Click"), 2);
}

TEST_F(AccessibleWidgetsTest, OptionIsChosenOnce) {
  form->Option1[1].Value = true;
  Click(form->Text1);
  events.clear();
  Act(form->Option1[2], QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(form->Option1[2].Value);
  EXPECT_FALSE(form->Option1[1].Value);
  EXPECT_EQ(Count("Option1(2).Click"), 1);
  EXPECT_TRUE(*Widget().ViewOf(form->Option1[2])->WhatShows().chosen);
}

TEST_F(AccessibleWidgetsTest, ChosenOptionCannotBeCleared) {
  form->Option1[1].Value = true;
  events.clear();
  Act(form->Option1[1], QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(form->Option1[1].Value);
  EXPECT_TRUE(*Widget().ViewOf(form->Option1[1])->WhatShows().chosen);
}

TEST_F(AccessibleWidgetsTest, TextThatIsPutIntoABoxReachesTheProgram) {
  form->Text1.Text = "1.9";
  events.clear();
  AccessOf(form->Text1).editableTextInterface()->insertText(0, "9");
  EXPECT_EQ(form->Text1.Text.get(), "91.9");
  EXPECT_EQ(Count("Text1.Change"), 1);
  AccessOf(form->Text3).editableTextInterface()->insertText(0, "remark");
  EXPECT_EQ(form->Text3.Text.get(), "remark");
}

TEST_F(AccessibleWidgetsTest, TextThatIsPutIntoABoxThatIsOffGoesAgain) {
  form->Text1.Text = "1.9";
  form->Text1.Enabled = false;
  AccessOf(form->Text1).editableTextInterface()->insertText(0, "9");
  EXPECT_EQ(form->Text1.Text.get(), "1.9");
  EXPECT_EQ(WidgetOf<QLineEdit>(form->Text1).text(), "1.9");
}

TEST_F(AccessibleWidgetsTest, TextThatIsPutIntoAComboReachesTheProgram) {
  events.clear();
  QLineEdit& line = *WidgetOf<QComboBox>(form->Combo1).lineEdit();
  QAccessible::queryAccessibleInterface(&line)->editableTextInterface()->insertText(0, "x");
  EXPECT_EQ(form->Combo1.Text.get(), "x");
  EXPECT_EQ(Count("Combo1.Change"), 1);
}

TEST_F(AccessibleWidgetsTest, EntryThatIsPickedIsNoTextThatIsPutIn) {
  SetFocus(form->Combo1);
  Settle();
  events.clear();
  Key(Qt::Key_Down);
  EXPECT_EQ(form->Combo1.Text.get(), "one");
  EXPECT_EQ(events, (Events{"Combo1.KeyDown", "Combo1.Click"}));
}

TEST_F(AccessibleWidgetsTest, SpinButtonTellsWhatItTurnsAndTurns) {
  form->Label1.Left = 3000;
  form->Label1.Width = 570;
  form->Label1.Caption = "13 km/h";
  QAccessibleInterface& spin = AccessOf(form->Spin1);
  EXPECT_EQ(spin.role(), QAccessible::SpinBox);
  EXPECT_EQ(spin.text(QAccessible::Value), "13 km/h");
  EXPECT_EQ(spin.text(QAccessible::Description), "13 km/h");
  EXPECT_EQ(spin.valueInterface()->currentValue().toDouble(), 13);
  Act(form->Spin1, QAccessibleActionInterface::increaseAction());
  Act(form->Spin1, QAccessibleActionInterface::decreaseAction());
  spin.valueInterface()->setCurrentValue(20);
  spin.valueInterface()->setCurrentValue(13);
  spin.valueInterface()->setCurrentValue(3);
  EXPECT_EQ(events,
            (Events{"Label1.Change", "Spin1.SpinUp", "Spin1.SpinDown", "Spin1.SpinUp", "Spin1.SpinDown"}));
}

TEST_F(AccessibleWidgetsTest, SpinButtonThatIsOffDoesNotTurn) {
  form->Spin1.Enabled = false;
  Act(form->Spin1, QAccessibleActionInterface::increaseAction());
  AccessOf(form->Spin1).valueInterface()->setCurrentValue(20);
  EXPECT_EQ(events, Events{});
}

TEST_F(AccessibleWidgetsTest, ScrollBarIsMoved) {
  AccessOf(form->HScroll1).valueInterface()->setCurrentValue(70);
  EXPECT_EQ(form->HScroll1.Value.get(), 70);
}

TEST_F(AccessibleWidgetsTest, ScrollBarTellsAValueBeyondItsEnds) {
  QAccessibleInterface& bar = AccessOf(form->HScroll1);
  EXPECT_EQ(bar.role(), QAccessible::ScrollBar);
  form->HScroll1.Value = 160;
  EXPECT_EQ(bar.valueInterface()->currentValue().toInt(), 160);
  EXPECT_EQ(bar.text(QAccessible::Value), "160");
  EXPECT_EQ(bar.valueInterface()->minimumValue().toInt(), 0);
  EXPECT_EQ(bar.valueInterface()->maximumValue().toInt(), 100);
  EXPECT_EQ(bar.valueInterface()->minimumStepSize().toInt(), 5);
  bar.valueInterface()->setCurrentValue(160);
  EXPECT_EQ(form->HScroll1.Value.get(), 160);
  bar.valueInterface()->setCurrentValue(95);
  EXPECT_EQ(form->HScroll1.Value.get(), 95);
  EXPECT_EQ(bar.text(QAccessible::Value), "95");
}

TEST_F(AccessibleWidgetsTest, LabelsAndPicturesThatAnswerClicksArePressed) {
  EXPECT_EQ(AccessOf(form->Label1).role(), QAccessible::Button);
  EXPECT_EQ(NameOf(form->Label1), "Name");
  Act(form->Label1, QAccessibleActionInterface::pressAction());
  Act(form->Picture1, QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Count("Label1.Click"), 1);
  EXPECT_EQ(Count("Picture1.Click"), 1);
}

/// A label with the events that a window's program listens to, and no others.
class AccessiblePressTest : public AccessibleWidgetsTest {
 protected:
  struct LabelForm : Window {
    explicit LabelForm(Desk& theDesk) : Window(theDesk, "Form91", {300, 450, 6120, 5190}, {}) {}
    Label Label1{"Label1", *this, {150, 150, 1500, 255}, {.caption = "Request"}};
  };

  void Show(const Events& handled) {
    for (const std::string& name : handled) {
      own.Label1.FindEvent(name)->Bind([this, name](int argument) {
        heard.push_back(argument == 0 ? name : name + " " + std::to_string(argument));
      });
    }
    own.LoadWindow();
    own.Show();
  }

  ~AccessiblePressTest() override { own.UnloadWindow(); }

  QAccessibleInterface& Access() {
    return *QAccessible::queryAccessibleInterface(windows.FormOf(own)->ViewOf(own.Label1)->Widget());
  }
  QStringList Actions() { return Access().actionInterface()->actionNames(); }
  void Do(const QString& action) { Access().actionInterface()->doAction(action); }

  const QString press = QAccessibleActionInterface::pressAction();
  const QString menu = QAccessibleActionInterface::showMenuAction();
  LabelForm own{program->desk};
  Events heard;
};

TEST_F(AccessiblePressTest, IsADoubleClickWhereThatAloneDoesSomething) {
  Show({"DblClick"});
  EXPECT_EQ(Actions(), QStringList{press});
  Do(press);
  EXPECT_EQ(heard, Events{"DblClick"});
  Do(menu);
  EXPECT_EQ(heard, Events{"DblClick"});
}

TEST_F(AccessiblePressTest, IsAClickWhereBothDoSomething) {
  Show({"Click", "DblClick"});
  EXPECT_EQ(Actions(), QStringList{press});
  Do(press);
  EXPECT_EQ(heard, Events{"Click"});
}

TEST_F(AccessiblePressTest, MenuIsTheRightButtonWhereButtonsAreToldApart) {
  Show({"MouseUp"});
  EXPECT_EQ(Actions(), (QStringList{press, menu}));
  Do(menu);
  EXPECT_EQ(heard, Events{"MouseUp " + std::to_string(kRightButton)});
  Do(press);
  EXPECT_EQ(heard.back(), "MouseUp " + std::to_string(kLeftButton));
  EXPECT_EQ(heard.size(), 2U);
}

TEST_F(AccessiblePressTest, DownIsEnoughForAMenu) {
  Show({"MouseDown", "DblClick"});
  EXPECT_EQ(Actions(), (QStringList{press, menu}));
  Do(menu);
  EXPECT_EQ(heard, Events{"MouseDown " + std::to_string(kRightButton)});
}

TEST_F(AccessiblePressTest, NothingCanBeDoneToWhatIsOff) {
  Show({"MouseUp", "DblClick"});
  own.Label1.Enabled = false;
  EXPECT_EQ(Actions(), QStringList{});
  Do(press);
  Do(menu);
  EXPECT_EQ(heard, Events{});
}

/// The program's own windows, with real widgets.
class AccessibleProgramTest : public AccessibleWidgetsTest {
 protected:
  AccessibleProgramTest() {
    windows.Prepare(program->form2);
    for (Control* control : program->form2.controls)
      views[control] = windows.FormOf(program->form2)->ViewOf(*control);
  }

  QAccessibleInterface& AccessIn(const Control& control) {
    return *QAccessible::queryAccessibleInterface(views.at(&control)->Widget());
  }

  QString Name(const Control& control) { return AccessIn(control).text(QAccessible::Name); }

  std::map<const Control*, ControlView*> views;
};

TEST_F(AccessibleProgramTest, WidgetsOfTheMainWindowSayWhatTheyAreFor) {
  Form2& form2 = program->form2;
  EXPECT_EQ(Name(form2.Command1[3]), "AUTO 3");
  EXPECT_EQ(Name(form2.Command2), "Mode");
  EXPECT_EQ(Name(form2.Text1[6]), "REQ 6");
  EXPECT_EQ(Name(form2.Spin4), "Primary");
  EXPECT_EQ(Name(form2.Spin1[2]), "- 2");
  EXPECT_EQ(Name(form2.HScroll1), "Shift Ne");
  EXPECT_EQ(Name(form2.Option1[0]), "None");
  form2.Command1[3].Caption = "MANUAL";
  EXPECT_EQ(Name(form2.Command1[3]), "MANUAL 3");
}

TEST_F(AccessibleProgramTest, SpinButtonsTellTheLabelBesideThem) {
  Form2& form2 = program->form2;
  form2.Label6.Caption = "24x75";
  form2.Label8.Caption = "14x41";
  EXPECT_EQ(AccessIn(form2.Spin4).text(QAccessible::Value), "24x75");
  EXPECT_EQ(AccessIn(form2.Spin5).text(QAccessible::Value), "14x41");
  form2.Picture4.Visible = true;
  form2.Label14[2].Caption = "-2";
  form2.Label15[2].Caption = "3";
  EXPECT_EQ(AccessIn(form2.Spin1[2]).text(QAccessible::Value), "-2");
  EXPECT_EQ(AccessIn(form2.Spin1[2]).valueInterface()->currentValue().toDouble(), -2);
  EXPECT_EQ(AccessIn(form2.Spin3[2]).text(QAccessible::Value), "3");
  form2.Picture4.Visible = false;
  form2.Picture12.Visible = true;
  form2.Label12[5].Caption = "18x22";
  EXPECT_EQ(AccessIn(form2.Spin6[5]).text(QAccessible::Value), "18x22");
}

}  // namespace
}  // namespace veldrin
