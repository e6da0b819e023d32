// The line below the main window: when it is there, what of the window it leaves alone, and the keys to it.
#include "desktop/windows/message_strip.h"

#include "desktop/input/reach.h"
#include "tests/desktop/main_window.h"

#include <QKeyEvent>

namespace veldrin {
namespace {

class MessageStripTest : public MainWindowTest {
 protected:
  MessageStripTest() {
    Strip().Allow();
    QCoreApplication::processEvents();
  }

  MessageStrip& Strip() { return *Widget().Strip(); }
  void Tell(Severity severity, const std::string& text, std::vector<NoticeAction> actions = {}) {
    stage.notices.Add({severity, {text, "日本語 " + text}, std::move(actions)});
    QCoreApplication::processEvents();
  }
  void Offer() {
    Tell(Severity::Warning, "offer",
         {{{"Open", "開く"}, [this] { ++opened; }}, {{"Forget", "破棄"}, [this] { ++forgotten; }}});
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focused = Widget().focusWidget() == nullptr ? &Widget() : Widget().focusWidget();
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, modifiers);
      QCoreApplication::sendEvent(focused, &event);
    }
    QCoreApplication::processEvents();
  }
  QRect Inside() {
    const QWidget* const client = &Widget().Client();
    return {client->mapTo(&Widget(), QPoint()), client->size()};
  }

  int opened = 0;
  int forgotten = 0;
};

TEST_F(MessageStripTest, IsNotThereWithNothingToTell) {
  EXPECT_FALSE(Strip().isVisible());
  EXPECT_EQ(Strip().Room(), 0);
}

TEST_F(MessageStripTest, WindowGrowsByItAndNothingInsideMoves) {
  const QSize before = Widget().size();
  const QRect inside = Inside();
  const float width = program->form2.Width;
  const float height = program->form2.Height;
  Tell(Severity::Information, "Saved as A");
  ASSERT_TRUE(Strip().isVisible());
  EXPECT_EQ(Widget().size(), before + QSize(0, Strip().Room()));
  EXPECT_EQ(Inside(), inside);
  EXPECT_EQ(program->form2.Width, width);
  EXPECT_EQ(program->form2.Height, height);
  EXPECT_EQ(Strip().geometry().bottom(), Widget().height() - 1);
  stage.notices.Drop();
  QCoreApplication::processEvents();
  EXPECT_FALSE(Strip().isVisible());
  EXPECT_EQ(Widget().size(), before);
  EXPECT_EQ(Inside(), inside);
}

TEST_F(MessageStripTest, TakesNoFocus) {
  const Control* const focus = program->form2.focus;
  QWidget* const focused = Widget().focusWidget();
  Offer();
  EXPECT_EQ(program->form2.focus, focus);
  EXPECT_EQ(Widget().focusWidget(), focused);
  for (const QWidget* part : Strip().findChildren<QWidget*>()) EXPECT_EQ(part->focusPolicy(), Qt::NoFocus);
}

TEST_F(MessageStripTest, SpeaksTheLanguageInForce) {
  Offer();
  EXPECT_EQ(Strip().accessibleName(), "offer");
  RunEvent(*program, [&] { program->workspace.Language = kJapanese; });
  windows.Settle();
  EXPECT_EQ(Strip().accessibleName(), "日本語 offer");
  EXPECT_NE(Strip().findChild<QPushButton*>(), nullptr);
}

TEST_F(MessageStripTest, ButtonRunsItsActionAsAnEventAndTheNoticeGoes) {
  Offer();
  QPushButton* open = nullptr;
  for (QPushButton* button : Strip().findChildren<QPushButton*>()) {
    if (button->isVisible() && button->text() == "Open") open = button;
  }
  ASSERT_NE(open, nullptr);
  open->click();
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(forgotten, 0);
  QCoreApplication::processEvents();
  EXPECT_FALSE(Strip().isVisible());
}

TEST_F(MessageStripTest, ButtonThatPutsAFailureAwayIsNamedInJapaneseToo) {
  program->workspace.Language = kJapanese;
  Tell(Severity::Failure, "failed");
  ASSERT_TRUE(Strip().ReachFirst());
  EXPECT_EQ(Strip().Reached()->accessibleName(), "閉じる");
}

TEST_F(MessageStripTest, FailureStandsUntilItIsPutAway) {
  Tell(Severity::Failure, "failed");
  EXPECT_FALSE(stage.notices.Passes());
  ASSERT_TRUE(Strip().ReachFirst());
  EXPECT_EQ(Strip().Reached()->accessibleName(), "Close");
  Strip().PressReached();
  QCoreApplication::processEvents();
  EXPECT_FALSE(Strip().isVisible());
}

TEST_F(MessageStripTest, F6ReachesItsButtonsBehindTheControls) {
  Offer();
  for (int i = 0; i < 200 && Strip().Reached() == nullptr; ++i) Key(Qt::Key_F6);
  ASSERT_NE(Strip().Reached(), nullptr);
  EXPECT_EQ(ReachedIn(Widget()), nullptr);
  EXPECT_EQ(Strip().Reached()->text(), "Open");
  Key(Qt::Key_F6);
  EXPECT_EQ(Strip().Reached()->text(), "Forget");
  Key(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(Strip().Reached()->text(), "Open");
  Key(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(Strip().Reached(), nullptr);
  EXPECT_NE(ReachedIn(Widget()), nullptr);
  Key(Qt::Key_F6);
  Key(Qt::Key_F6);
  Key(Qt::Key_Space);
  EXPECT_EQ(forgotten, 1);
}

TEST_F(MessageStripTest, F6BackwardBeginsWithIt) {
  Offer();
  Key(Qt::Key_F6, Qt::ShiftModifier);
  ASSERT_NE(Strip().Reached(), nullptr);
  EXPECT_EQ(Strip().Reached()->text(), "Forget");
  Key(Qt::Key_Escape);
  EXPECT_EQ(Strip().Reached(), nullptr);
  EXPECT_EQ(forgotten, 0);
}

TEST_F(MessageStripTest, OtherKeysLetGoAndDoWhatTheyAlwaysDo) {
  Offer();
  Key(Qt::Key_F6, Qt::ShiftModifier);
  Key(Qt::Key_Tab);
  EXPECT_EQ(Strip().Reached(), nullptr);
  EXPECT_EQ(opened + forgotten, 0);
}

TEST_F(MessageStripTest, LongTextIsCutAndWholeForReaders) {
  const std::string text(400, 'w');
  Tell(Severity::Failure, text);
  EXPECT_EQ(Strip().accessibleName().toStdString(), text);
  EXPECT_EQ(Strip().findChild<QLabel*>("text")->toolTip().toStdString(), text);
  EXPECT_LT(Strip().findChild<QLabel*>("text")->text().size(), 400);
}

}  // namespace
}  // namespace veldrin
