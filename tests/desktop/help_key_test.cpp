#include "desktop/input/help_key.h"

#include "desktop/input/reach.h"
#include "tests/desktop/main_window.h"

namespace veldrin {
namespace {

/// F1 in the program's own windows, with a record of the sections that it asked for.
class HelpKeyTest : public MainWindowTest {
 protected:
  HelpKeyTest() {
    stage.helpAsked = [this](std::string_view section) { asked.emplace_back(section); };
  }

  void Key(Window& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool held = false) {
    FormWidget& form = *windows.FormOf(window);
    QWidget* const target = form.focusWidget() != nullptr ? form.focusWidget() : &form;
    QKeyEvent event(QEvent::KeyPress, key, modifiers, {}, held);
    QApplication::sendEvent(target, &event);
  }

  void Focus(Control& control) {
    RunEvent(*program, [&] { user::Focus(control); });
    windows.Settle();
  }

  void Click(Control& control) {
    RunEvent(*program, [&] { user::Click(control); });
    windows.Settle();
  }

  using Sections = std::vector<std::string>;
  Sections asked;
};

TEST_F(HelpKeyTest, AsksForThePanelOfTheControlWithTheFocus) {
  Form2& form2 = program->form2;
  Focus(form2.Command3);
  Key(form2, Qt::Key_F1);
  Focus(form2.Text2);
  Key(form2, Qt::Key_F1);
  Focus(form2.Text6);
  Key(form2, Qt::Key_F1);
  EXPECT_EQ(asked, (Sections{"header", "plan-panel", "remark"}));
}

TEST_F(HelpKeyTest, FollowsTheMode) {
  Form2& form2 = program->form2;
  Click(form2.Command2);
  ASSERT_EQ(form2.focus, &form2.Text1[6]);
  Key(form2, Qt::Key_F1);
  EXPECT_EQ(asked, Sections{"request-panel"});
}

TEST_F(HelpKeyTest, AsksForWhatF6HasReachedAndLeavesItsRing) {
  Form2& form2 = program->form2;
  Focus(form2.Text6);
  for (int k = 0; k < 100 && ReachedIn(Widget()) != &form2.HScroll1; ++k) Key(form2, Qt::Key_F6);
  ASSERT_EQ(ReachedIn(Widget()), &form2.HScroll1);
  Key(form2, Qt::Key_F1);
  EXPECT_EQ(asked, Sections{"scroll-bars"});
  EXPECT_EQ(ReachedIn(Widget()), &form2.HScroll1);
}

TEST_F(HelpKeyTest, AsksForTheLineOfMessagesWhereItsButtonsAreReached) {
  Widget().Strip()->Allow();
  stage.notices.Add({Severity::Information, {"Saved as A", "A に保存しました"}});
  Key(program->form2, Qt::Key_F6, Qt::ShiftModifier);
  ASSERT_TRUE(ReachesStrip(Widget()));
  Key(program->form2, Qt::Key_F1);
  EXPECT_EQ(asked, Sections{"messages"});
  EXPECT_TRUE(ReachesStrip(Widget()));
}

TEST_F(HelpKeyTest, WindowsWithoutAFocusAreAskedForAsAWhole) {
  Click(program->form2.menu_about);
  ASSERT_TRUE(program->form10);
  Key(*program->form10, Qt::Key_F1);
  EXPECT_EQ(asked, Sections{"about"});
}

TEST_F(HelpKeyTest, OnceForAKeyThatIsHeldAndNotWithAnother) {
  Form2& form2 = program->form2;
  Focus(form2.Text6);
  Key(form2, Qt::Key_F1, Qt::NoModifier, true);
  Key(form2, Qt::Key_F1, Qt::ShiftModifier);
  Key(form2, Qt::Key_F1, Qt::ControlModifier);
  Key(form2, Qt::Key_F2);
  EXPECT_EQ(asked, Sections{});
}

TEST_F(HelpKeyTest, ChangesNothing) {
  Form2& form2 = program->form2;
  Focus(form2.Text6);
  const std::string title = form2.Caption;
  Key(form2, Qt::Key_F1);
  EXPECT_EQ(form2.focus, &form2.Text6);
  EXPECT_EQ(form2.Caption.get(), title);
  EXPECT_EQ(program->workspace.DataChanged, "1");
}

using HelpKeyWithoutSectionTest = WidgetsTest;

TEST_F(HelpKeyWithoutSectionTest, IsHeardByTheControlAsEveryKey) {
  bool asked = false;
  stage.helpAsked = [&](std::string_view /*section*/) { asked = true; };
  Click(form->Text1);
  events.clear();
  Key(Qt::Key_F1);
  EXPECT_EQ(events, Events{"Text1.KeyDown"});
  EXPECT_FALSE(asked);
}

}  // namespace
}  // namespace veldrin
