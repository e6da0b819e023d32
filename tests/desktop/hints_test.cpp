// Hints as users meet them: under the pointer, by Shift+F1 and as screen readers hear them.
#include "view/hints/hints.h"

#include "desktop/accessible/accessible_control.h"
#include "desktop/controls/menu_view.h"
#include "desktop/windows/form_widget.h"
#include "hints/hint.h"
#include "tests/desktop/main_window.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace veldrin {
namespace {

/// Qt asks while widgets are made, and keeps what it hears.
struct WithAccess {
  WithAccess() { InstallAccessibleControls(); }
};

class HintsTest : WithAccess, public MainWindowTest {
 protected:
  HintsTest() { QToolTip::hideText(); }
  ~HintsTest() override { QToolTip::hideText(); }

  Form2& form2() { return program->form2; }

  /// The pointer rests in the middle of a widget, or at a place in it. What it shows then.
  static QString Point(QWidget& widget, const QPoint& place) {
    QToolTip::showText({}, QStringLiteral("before"), &widget);
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return QToolTip::text();
  }
  QString PointAt(const Control& control) {
    QWidget& widget = WidgetOf(control);
    return Point(widget, widget.rect().center());
  }

  QString HintOf(const Control& control) { return QString::fromStdString(Hint(*program, control)); }

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focused = Widget().focusWidget();
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(focused != nullptr ? focused : &Widget(), &event);
  }

  QString Heard(const Control& control, QAccessible::Text what = QAccessible::Description) {
    return QAccessible::queryAccessibleInterface(&WidgetOf(control))->text(what);
  }

  void Do(const std::function<void()>& doing) {
    RunEvent(*program, doing);
    windows.Settle();
  }
};

TEST_F(HintsTest, PointerBringsTheHintOfEveryKind) {
  for (const Control* control : std::vector<const Control*>{
           &form2().Command2, &form2().Label9[3], &form2().Spin6[2], &form2().Text3, &form2().HScroll1,
           &form2().Option1[0], &form2().Picture21, &form2().Text6, &form2().Picture28, &form2().Grid1}) {
    EXPECT_NE(HintOf(*control), "") << control->FullName();
    EXPECT_EQ(PointAt(*control), HintOf(*control)) << control->FullName();
  }
}

TEST_F(HintsTest, WhatIsOffSaysWhyUnderThePointer) {
  ASSERT_FALSE(WidgetOf(form2().Command7).isEnabled());
  EXPECT_EQ(PointAt(form2().Command7),
            "Restore: brings the plan back as it was loaded or last saved\n"
            "Nothing has changed since the plan was loaded or saved");
}

TEST_F(HintsTest, TextThatIsCutComesBeforeTheHint) {
  form2().Label24.Caption = "Far too long for the room that there is";
  windows.Settle();
  Widget().grab();
  EXPECT_EQ(PointAt(form2().Label24), "Far too long for the room that there is\n" + HintOf(form2().Label24));
}

TEST_F(HintsTest, PointerInAListBringsTheHintOfTheList) {
  RunEvent(*program, [&] { form2().Label8.Click(); });
  windows.Settle();
  auto& area = dynamic_cast<QAbstractScrollArea&>(WidgetOf(form2().Grid1));
  QHelpEvent event(QEvent::ToolTip, {5, 5}, area.viewport()->mapToGlobal(QPoint(5, 5)));
  // Qt hands on to those around what the inner ones have no use for.
  if (!QApplication::sendEvent(area.viewport(), &event) || !event.isAccepted()) {
    QApplication::sendEvent(&area, &event);
  }
  EXPECT_EQ(QToolTip::text(), HintOf(form2().Grid1));
}

TEST_F(HintsTest, EntriesOfTheMenuHaveTheirHints) {
  auto& bar = *Widget().findChild<QMenuBar*>();
  EXPECT_EQ(Point(bar, bar.actionGeometry(bar.actions()[0]).center()), HintOf(form2().menu_file));
  QMenu& file = *bar.actions()[0]->menu();
  EXPECT_EQ(Point(file, file.actionGeometry(file.actions()[0]).center()), HintOf(form2().menu_save));
  file.setActiveAction(file.actions()[1]);
  QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::ShiftModifier);
  QApplication::sendEvent(&file, &key);
  EXPECT_EQ(QToolTip::text(), HintOf(form2().menu_load));
  EXPECT_EQ(dynamic_cast<MenuView&>(*Widget().ViewOf(form2().f_calc)).Action().toolTip(),
            "Searches for plans that meet the speeds wanted, as the button Calcurate does\n"
            "No speeds wanted are being entered: Mode begins that");
}

TEST_F(HintsTest, ShiftF1ShowsTheHintOfWhatHasTheFocus) {
  Do([&] { SetFocus(form2().Text3); });
  Key(Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(QToolTip::text(), HintOf(form2().Text3));
  EXPECT_EQ(form2().focus, &form2().Text3);
}

TEST_F(HintsTest, ShiftF1ShowsTheHintOfWhatF6HasReachedAndLetsItBeReached) {
  Do([&] { SetFocus(form2().Text3); });
  Key(Qt::Key_F6);
  QWidget* const reached = Widget().Ring().Around();
  ASSERT_NE(reached, nullptr);
  const Control& control = *dynamic_cast<ControlView&>(*reached).Shows();
  EXPECT_NE(HintOf(control), HintOf(form2().Text3));
  Key(Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(QToolTip::text(), HintOf(control));
  EXPECT_EQ(Widget().Ring().Around(), reached);
}

TEST_F(HintsTest, ScreenReadersHearTheHintWithGearAndValue) {
  EXPECT_EQ(Heard(form2().Label9[3]), "Speed of the 3rd gear at the shift revolutions, km/h: 100.0");
  EXPECT_EQ(Heard(form2().Label9[3], QAccessible::Help), Heard(form2().Label9[3]));
  EXPECT_EQ(Heard(form2().Label9[3], QAccessible::Name), "100.0");
  EXPECT_EQ(Heard(form2().HScroll1), "Shift revolutions: 100 rev/min a step, 1000 a page: 10000");
  EXPECT_EQ(Heard(form2().Spin6[4]),
            "Steps through the gear pairs of the 4th gear, in the order of the list: 4A");
  EXPECT_EQ(Heard(form2().Command3), HintOf(form2().Command3));
  EXPECT_EQ(Heard(form2().Command3, QAccessible::Help), HintOf(form2().Command3));
  EXPECT_EQ(Heard(form2().Text3), HintOf(form2().Text3));
  EXPECT_EQ(Heard(form2().Picture28), HintOf(form2().Picture28));
}

TEST_F(HintsTest, PictureThatIsPressedIsCalledByWhatItShows) {
  EXPECT_EQ(Heard(form2().Picture21, QAccessible::Name),
            "Speed of each gear by revolutions, and the saw-tooth of changing up");
  EXPECT_EQ(Heard(form2().Picture28, QAccessible::Name), "Print");
}

TEST_F(HintsTest, WhatIsHeardFollowsTheStateOfTheProgram) {
  EXPECT_EQ(Heard(form2().Command2), "Mode: on to entering speeds; right button: by revolutions");
  Do([&] { form2().Command2.MouseUp(kLeftButton); });
  EXPECT_EQ(Heard(form2().Command2), "Mode: back to the plan; right button: on to entering revolutions");
  EXPECT_EQ(Heard(form2().Command5), HintOf(form2().Command5));
  EXPECT_TRUE(Heard(form2().Command5).endsWith("Mode leads back to the plan"));
}

TEST_F(HintsTest, EveryHintFitsOnASmallScreenAndIsPlainText) {
  constexpr int kSmallScreen = 1024;
  constexpr int kFrame = 24;  // what the box around it may take
  const QFontMetrics metrics(QToolTip::font());
  // As they are described, without the work of loading.
  const Form4 form4(program->desk);
  const Form5 form5(program->desk);
  const Form7 form7(program->desk);
  const Form9 form9(program->desk);
  const Form10 form10(program->desk);
  for (const Window* window : std::vector<const Window*>{&program->form1, &form2(), &program->form3, &form4,
                                                         &form5, &form7, &form9, &form10}) {
    for (const Control* control : window->controls) {
      for (const bool japanese : {false, true}) {
        const QString hint = QString::fromStdString(TableHint(*control, japanese));
        EXPECT_FALSE(Qt::mightBeRichText(hint)) << control->FullName();
        for (const QString& line : hint.split('\n')) {
          EXPECT_LE(metrics.horizontalAdvance(line), kSmallScreen - kFrame) << control->FullName();
        }
      }
    }
  }
}

}  // namespace
}  // namespace veldrin
