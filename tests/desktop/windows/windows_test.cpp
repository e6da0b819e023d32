#include "desktop/controls/menu_view.h"
#include "desktop/windows/placement.h"
#include "program/event_boundary.h"
#include "tests/desktop/shown_differences.h"
#include "tests/desktop/test_window.h"

#include <QLabel>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace veldrin {
namespace {

class WindowsTest : public WidgetsTest {
 protected:
  Events Differences() { return DifferenceLines(Widget(), stage); }
};

TEST_F(WindowsTest, NewWindowShowsWhatItsSlotsSay) {
  EXPECT_EQ(Differences(), Events{});
  EXPECT_EQ(Widget().Title(), "Test [*]");
  EXPECT_EQ(Widget().Client().size(), QSize((6120 - 120) / 15, (5190 - 690) / 15));
}

TEST_F(WindowsTest, EveryWrittenSlotIsShownAtOnce) {
  form->Label1.Caption = "other";
  form->Label1.ForeColor = kRed;
  form->Label1.BackColor = kYellow;
  form->Label1.Left = 200;
  form->Label1.Height = 400;
  form->Command1.Visible = false;
  form->Command2.Enabled = false;
  form->Text1.Text = "text";
  form->Option1[3].Value = true;
  form->HScroll1.Value = 77;
  form->menu_b.Caption = "Other";
  form->menu_c.Visible = false;
  form->Line1.Y1 = 100;
  form->Caption = "New";
  form->Picture1.BringToFront();
  form->SetSize(7500, 6000);
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(WindowsTest, ThumbOfAValueBeyondTheEndsIsShownAsItShouldBe) {
  for (const int value : {130, -30}) {
    form->HScroll1.Value = value;
    EXPECT_EQ(Differences(), Events{}) << value;
  }
  form->HScroll1.Value = 50;
  form->HScroll1.Max = 30;
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(WindowsTest, WidgetThatWasTamperedWithIsFound) {
  WidgetOf<QLabel>(form->Label1).setText("tampered");
  WidgetOf(form->Text1).hide();
  WidgetOf(form->Command1).move(0, 0);
  WidgetOf(form->Spin1).setEnabled(false);
  WidgetOf(form->Picture1).raise();
  EXPECT_EQ(Differences().size(), 5U);
}

TEST_F(WindowsTest, EveryZoomPlacesEveryControl) {
  for (const double factor : {0.5, 0.75, 1.25, 1.75, 2.0, 3.0}) {
    stage.zoom.Set(factor);
    EXPECT_EQ(Differences(), Events{}) << factor;
    EXPECT_EQ(WidgetOf(form->Command1).width(), qRound(80 * factor));
    EXPECT_EQ(WidgetOf(form->Command1).font().pixelSize(), qRound(12 * factor));
  }
}

TEST_F(WindowsTest, ChildrenOfAScaledPictureStretchWithIt) {
  form->Picture1.surface.SetScale({0, 0, 735, 735});
  Settle();
  EXPECT_EQ(WidgetOf(form->Option1[1]).geometry(), QRect(13, 41, 120, 34));
  EXPECT_EQ(Differences(), Events{});
  form->Picture1.Width = 2970;
  EXPECT_EQ(WidgetOf(form->Option1[1]).x(), 1 + qRound(90 * 196.0 / 735));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(WindowsTest, ChildrenOfAPictureWithAnotherScaleStayInTwips) {
  const QRect before = WidgetOf(form->Option1[1]).geometry();
  form->Picture1.surface.SetScale({0, 340, 15000, -340});
  Settle();
  EXPECT_EQ(WidgetOf(form->Option1[1]).geometry(), before);
}

TEST_F(WindowsTest, WindowThatIsGoneHasNoViewsAnyMore) {
  const FormWidget& widget = Widget();
  stage.input.Do([&] {
    form->UnloadWindow();
    EXPECT_EQ(widget.ViewOf(form->menu_a), nullptr);
    EXPECT_EQ(widget.ViewOf(form->Timer1), nullptr);
    EXPECT_EQ(widget.ViewOf(form->Text1), nullptr);
    return true;
  });
}

TEST_F(WindowsTest, WindowMayUnloadInAnEventOfItsOwnButton) {
  reactions["Command1.Click"] = [this] {
    form->UnloadWindow();
    program->desk.retired.push_back(std::move(form));
  };
  Click(form->Command1);
  EXPECT_TRUE(windows.Forms().empty());
}

TEST_F(WindowsTest, CloseBoxAsksTheProgram) {
  form->QueryUnload.Bind([this](int) { form->closeRefused = true; });
  Widget().close();
  EXPECT_TRUE(Widget().isVisible());
  EXPECT_TRUE(form->loaded);
}

TEST_F(WindowsTest, EscapeThatIsHeldPressesCancelOnce) {
  SetFocus(form->Text1);
  Settle();
  events.clear();
  const auto press = [this](bool repeated) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, repeated);
    QApplication::sendEvent(Widget().focusWidget(), &event);
    return event.isAccepted();
  };
  EXPECT_TRUE(press(false));
  EXPECT_TRUE(press(true));
  EXPECT_TRUE(press(true));
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command2.Click"), 1);
  EXPECT_TRUE(press(false));
  EXPECT_EQ(std::count(events.begin(), events.end(), "Command2.Click"), 2);
}

TEST_F(WindowsTest, EscapeThatIsHeldClosesOneWindow) {
  auto compare = std::make_shared<Form5>(program->desk);
  compare->LoadWindow();
  compare->Show();
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
  FormWidget& widget = *windows.FormOf(*compare);
  QApplication::sendEvent(widget.focusWidget() != nullptr ? widget.focusWidget() : &widget, &repeated);
  EXPECT_TRUE(compare->loaded);
  compare->UnloadWindow();
}

TEST_F(WindowsTest, WindowOfFixedSizeCannotBeMaximised) {
  TestForm fixed(program->desk);
  fixed.LoadWindow();
  fixed.Show();
  const Qt::WindowFlags flags = windows.FormOf(fixed)->windowFlags();
  EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
  EXPECT_TRUE(flags.testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
  EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
  EXPECT_EQ(windows.FormOf(fixed)->windowType(), Qt::Window);
  EXPECT_TRUE(Widget().windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
  fixed.UnloadWindow();
}

TEST_F(WindowsTest, ModalLoopEndsWhenTheWindowHidesAndKeepsOthersOutOfReach) {
  TestForm modal(program->desk);
  bool blocked = false;
  QTimer::singleShot(0, qApp, [&] {
    Click(form->Command1);
    blocked = events.empty();
    EXPECT_EQ(windows.FormOf(modal)->windowModality(), Qt::ApplicationModal);
    stage.input.Do([&] {
      modal.Hide();
      return true;
    });
  });
  bool returned = false;
  stage.input.Do([&] {
    modal.ShowModal();
    returned = true;
    return true;
  });
  EXPECT_TRUE(blocked);
  EXPECT_TRUE(returned);
  modal.UnloadWindow();
}

TEST_F(WindowsTest, EndOfTheProgramLeavesEveryModalLoopAndRoutine) {
  TestForm first(program->desk);
  TestForm second(program->desk);
  QTimer::singleShot(0, qApp, [&] {
    QTimer::singleShot(0, qApp, [&] { stage.input.Do([]() -> bool { throw EndOfProgram{}; }); });
    stage.input.Do([&] {
      second.ShowModal();
      ADD_FAILURE() << "the inner routine went on";
      return true;
    });
  });
  stage.input.Do([&] {
    first.ShowModal();
    ADD_FAILURE() << "the outer routine went on";
    return true;
  });
  EXPECT_TRUE(program->ended);
  EXPECT_EQ(program->endFault, 0);
  windows.Forget();
}

TEST_F(WindowsTest, FaultInAnEventEndsTheProgramWithItsBox) {
  reactions["Command1.Click"] = [] { Raise(kFaultDivisionByZero); };
  bool ended = false;
  stage.input.ended = [&] { ended = true; };
  Click(form->Command1);
  EXPECT_TRUE(ended);
  EXPECT_EQ(program->endFault, kFaultDivisionByZero);
  events.clear();
  Click(form->Command2);
  EXPECT_EQ(events, Events{});
}

TEST_F(WindowsTest, WindowDrawnLargerTellsItsNewSize) {
  const QSize pixels = Widget().size();
  Widget().resize(pixels + QSize(60, 30));
  QCoreApplication::processEvents();
  EXPECT_EQ(form->Width.get(), 6120 + 900);
  EXPECT_EQ(form->Height.get(), 5190 + 450);
  EXPECT_GE(std::count(events.begin(), events.end(), "Resize"), 1);
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(WindowsTest, WindowLargerThanTheScreenScrolls) {
  const QSize screen = Widget().screen()->availableSize();
  stage.zoom.Set(Zoom::kMost);
  EXPECT_LE(Widget().width(), screen.width());
  EXPECT_LE(Widget().height(), screen.height());
  EXPECT_EQ(Widget().Client().size(), QSize(1200, 900));
  EXPECT_EQ(form->Width.get(), 6120);
}

TEST_F(WindowsTest, MovedWindowTellsItsPlaceInTwips) {
  Widget().move(100, 60);
  QCoreApplication::processEvents();
  EXPECT_EQ(form->Left.get(), 1500);
  EXPECT_EQ(form->Top.get(), 900);
}

struct FormWithoutTimer : Window {
  explicit FormWithoutTimer(Desk& theDesk) : Window(theDesk, "Form91", {0, 0, 1500, 1500}, {}) {}
};

TEST_F(WindowsTest, OnlyWindowsWithATimerAreBuiltBeforeTheyAreShown) {
  const auto timed = std::make_shared<TestForm>(program->desk);
  timed->LoadWindow();
  EXPECT_NE(windows.FormOf(*timed), nullptr);
  const auto other = std::make_shared<FormWithoutTimer>(program->desk);
  other->LoadWindow();
  EXPECT_EQ(windows.FormOf(*other), nullptr);
  other->Show();
  EXPECT_NE(windows.FormOf(*other), nullptr);
  other->UnloadWindow();
  timed->UnloadWindow();
}

TEST_F(WindowsTest, TimersRunByTheClockWhileTheyAreOn) {
  form->Timer1.Enabled = true;
  Wait(150);
  const auto ticks = events.size();
  EXPECT_GE(ticks, 3U);
  form->Timer1.Enabled = false;
  Wait(60);
  EXPECT_EQ(events.size(), ticks);
}

TEST_F(WindowsTest, ControlsHaveNamesForThoseWhoDoNotSeeThem) {
  EXPECT_EQ(WidgetOf(form->Text1).accessibleName(), "Name");
  EXPECT_EQ(WidgetOf(form->Command1).accessibleName(), "O K");
}

}  // namespace
}  // namespace veldrin
