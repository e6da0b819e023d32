// Keys in the program's own windows.
#include "desktop/input/reach.h"
#include "tests/desktop/test_window.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace veldrin {
namespace {

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
