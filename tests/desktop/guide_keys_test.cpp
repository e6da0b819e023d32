// Every key that the user's guide names does what it says, and every one that does something is named.
#include "desktop/input/reach.h"
#include "tests/desktop/main_window.h"
#include "tests/guide/guide_text.h"

#include <QShortcut>
#include <QToolTip>

#include <functional>
#include <map>

namespace veldrin {
namespace {

class GuideKeysTest : public MainWindowTest {
 protected:
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Widget().activateWindow();
    PressIn(program->form2, key, modifiers);
  }

  void PressIn(Window& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    FormWidget& form = *windows.FormOf(window);
    QWidget* const target = form.focusWidget() != nullptr ? form.focusWidget() : &form;
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(target, &event);
    windows.Settle();
  }

  void Focus(Control& control) {
    RunEvent(*program, [&] { user::Focus(control); });
    windows.Settle();
  }

  void Reach(const Control& control) {
    for (int k = 0; k < 200 && ReachedIn(Widget()) != &control; ++k) Press(Qt::Key_F6);
    ASSERT_EQ(ReachedIn(Widget()), &control);
  }

  bool Asks() {
    bool asked = false;
    stage.helpAsked = [&](std::string_view /*section*/) { asked = true; };
    Press(Qt::Key_F1);
    return asked;
  }

  bool Tells() {
    Focus(form2.Command3);
    Press(Qt::Key_F1, Qt::ShiftModifier);
    const bool told = QToolTip::text().startsWith("Load: ");
    QToolTip::hideText();
    return told;
  }

  bool Reaches(Qt::KeyboardModifiers modifiers) {
    Press(Qt::Key_F6, modifiers);
    return ReachedIn(Widget()) != nullptr;
  }

  bool LetsGo() {
    Press(Qt::Key_F6);
    Press(Qt::Key_Escape);
    return ReachedIn(Widget()) == nullptr;
  }

  bool MovesFocus(int key, Qt::KeyboardModifiers modifiers) {
    Focus(form2.Command3);
    Press(key, modifiers);
    return form2.focus != &form2.Command3;
  }

  /// A press of "Mode", by the left button and by the right one.
  bool PressesMode(int key) {
    Focus(form2.Command2);
    Press(key);
    return program->workspace.ModeWord == mode::kSpeed;
  }
  bool PressesModeRight(int key, Qt::KeyboardModifiers modifiers) {
    PressesMode(Qt::Key_Space);
    Focus(form2.Command2);
    Press(key, modifiers);
    return program->workspace.ModeWord == mode::kRpm;
  }

  bool MovesBar(int key) {
    constexpr int kMiddle = 10000;
    form2.HScroll1.Value = kMiddle;
    Reach(form2.HScroll1);
    Press(key);
    return form2.HScroll1.Value != kMiddle;
  }

  bool Zooms(const char* combination) {
    stage.zoom.Set(1.5);
    for (QShortcut* const shortcut : Widget().findChildren<QShortcut*>()) {
      if (shortcut->key() == QKeySequence(combination)) Q_EMIT shortcut->activated();
    }
    return stage.zoom.Factor() != 1.5;
  }

  /// In the folders of the chooser.
  bool GoesUp() {
    Form3& form3 = program->form3;
    RunEvent(*program, [&] { form3.Show(); });
    form3.Dir1.Path = "C:\\VELDRIN\\LIST";
    RunEvent(*program, [&] { user::Focus(form3.Dir1); });
    windows.Settle();
    PressIn(form3, Qt::Key_Backspace);
    return form3.Dir1.Path.get() == "C:\\VELDRIN";
  }

  Form2& form2 = program->form2;

  // clang-format off
  const std::map<std::string, std::function<bool()>> keys = {
      {"F1",         [this] { return Asks(); }},
      {"Shift+F1",   [this] { return Tells(); }},
      {"F6",         [this] { return Reaches(Qt::NoModifier); }},
      {"Shift+F6",   [this] { return Reaches(Qt::ShiftModifier); }},
      {"Escape",     [this] { return LetsGo(); }},
      {"Tab",        [this] { return MovesFocus(Qt::Key_Tab, Qt::NoModifier); }},
      {"Shift+Tab",  [this] { return MovesFocus(Qt::Key_Backtab, Qt::ShiftModifier); }},
      {"Space",      [this] { return PressesMode(Qt::Key_Space); }},
      {"Enter",      [this] { return PressesMode(Qt::Key_Return); }},
      {"Menu",       [this] { return PressesModeRight(Qt::Key_Menu, Qt::NoModifier); }},
      {"Shift+F10",  [this] { return PressesModeRight(Qt::Key_F10, Qt::ShiftModifier); }},
      {"Up",         [this] { return MovesBar(Qt::Key_Up); }},
      {"Down",       [this] { return MovesBar(Qt::Key_Down); }},
      {"Left",       [this] { return MovesBar(Qt::Key_Left); }},
      {"Right",      [this] { return MovesBar(Qt::Key_Right); }},
      {"Page Up",    [this] { return MovesBar(Qt::Key_PageUp); }},
      {"Page Down",  [this] { return MovesBar(Qt::Key_PageDown); }},
      {"Home",       [this] { return MovesBar(Qt::Key_Home); }},
      {"End",        [this] { return MovesBar(Qt::Key_End); }},
      {"Ctrl+Plus",  [this] { return Zooms("Ctrl++"); }},
      {"Ctrl+Minus", [this] { return Zooms("Ctrl+-"); }},
      {"Ctrl+0",     [this] { return Zooms("Ctrl+0"); }},
      {"Backspace",  [this] { return GoesUp(); }},
  };
  // clang-format on
};

TEST_F(GuideKeysTest, TheGuideNamesThemAllAndThoseOfTheMenus) {
  std::set<std::string> there;
  for (const auto& [name, works] : keys) there.insert(name);
  for (const Control* control : form2.controls) {
    if (control->kind != ControlKind::Menu) continue;
    const std::string& shortcut = static_cast<const Menu*>(control)->shortcut;
    if (!shortcut.empty()) there.insert(shortcut);
  }
  for (const char* language : {"en", "ja"}) EXPECT_EQ(GuideText(language).Keys(), there) << language;
}

TEST_F(GuideKeysTest, EachDoesSomething) {
  for (const auto& [name, works] : keys) {
    // Each begins with the plan on the screen and nothing in the ring.
    Press(Qt::Key_Escape);
    if (program->workspace.ModeWord != mode::kChange) PressesMode(Qt::Key_Space);
    EXPECT_EQ(program->workspace.ModeWord, mode::kChange);
    EXPECT_TRUE(works()) << name;
  }
}

}  // namespace
}  // namespace veldrin
