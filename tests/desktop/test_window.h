// A small window with controls of every kind, shown by real widgets, and the mouse and keys to use it.
#pragma once

#include "desktop/windows/desktop_windows.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "view/bind.h"
#include "view/control_array.h"
#include "view/grid.h"
#include "view/list_boxes.h"
#include "window_script/script_windows.h"
#include "workspace/program.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QInputMethodEvent>
#include <QTimer>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace veldrin {

struct TestForm : Window {
  explicit TestForm(Desk& theDesk)
      : Window(theDesk, "Form90", {300, 450, 6120, 5190}, {.caption = "Test [*]", .back = kDarkBlue}, true) {}

  // clang-format off
  Label        Label1  {"Label1",   *this,    { 150,  150, 1500,  255}, {.caption = "Name", .fore = kWhite, .back = kBlack}};
  TextBox      Text1   {"Text1",    *this,    {1800,  150, 1500,  315}, {.back = kWhite}};
  TextBox      Text2   {"Text2",    *this,    {1800,  600, 1500,  315}, {.back = kWhite}};
  TextBox      Text3   {"Text3",    *this,    {1800, 1050, 1500,  900}, {.back = kWhite}, true};
  Button       Command1{"Command1", *this,    { 150,  600, 1200,  375}, {.caption = "O K"}};
  Button       Command2{"Command2", *this,    { 150, 1050, 1200,  375}, {.caption = "Cancel"}};
  Picture      Picture1{"Picture1", *this,    { 150, 2100, 1500, 1500}, {.back = kLightGrey, .border = true}};
  ControlArray<OptionButton> Option1{1, 3, Elements<OptionButton>("Option1", Picture1, [](int i) { return Place{90, 300.0F * static_cast<float>(i), 900, 255}; })};
  SpinButton   Spin1   {"Spin1",    *this,    {3600,  150,  300,  375}};
  ScrollBar    HScroll1{"HScroll1", *this,    {1800, 2100, 3000,  195}, {0, 100, 50, 5, 20}};
  ComboBox     Combo1  {"Combo1",   *this,    {1800, 2400, 1500,  315}, {.back = kWhite}, {"one", "two", "three"}};
  ComboBox     Combo2  {"Combo2",   *this,    {3450, 2400, 1500,  315}, {.back = kWhite}, {"a", "b"}, false};
  Grid         Grid1   {"Grid1",    *this,    {1800, 2850, 3000, 1350}, {.back = kWhite}};
  Line         Line1   {"Line1",    *this,      150, 4300, 5000, 4300, kWhite};
  TimerControl Timer1  {"Timer1",   *this,    20};
  Menu         menu_a  {"menu_a",   *this,    "File(&F)"};
  Menu         menu_b  {"menu_b",   menu_a,   "Calculate(&C)", "Ctrl+C"};
  Menu         menu_c  {"menu_c",   menu_a,   "Quit(&X)", "Ctrl+X"};
  ControlArray<Menu> menu_d{0, 0, [this](int) { return std::make_unique<Menu>("menu_d", menu_a, "-"); }};
  // clang-format on
};

/// The end of a test with widgets: nothing of them is told to a program that goes before they do.
inline void TakeDown(SimulatedMachine& simulated, Stage& stage, DesktopWindows& windows) {
  simulated.windows.Forget();
  stage.input.Serve(nullptr);
  windows.Forget();
  windows.Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

/// The window on the screen, with a record of the events that its controls fired.
class WidgetsTest : public ::testing::Test {
 protected:
  WidgetsTest() {
    stage.input.Serve(program.get());
    Listen();
    form->LoadWindow();
    form->Show();
    Widget().activateWindow();
    QCoreApplication::processEvents();
    events.clear();
  }

  ~WidgetsTest() override { TakeDown(simulated, stage, windows); }

  /// Lets the widgets take over what the program just wrote outside of an event.
  void Settle() { windows.Settle(); }

  FormWidget& Widget() { return *windows.FormOf(*form); }

  template <class WidgetType = QWidget>
  WidgetType& WidgetOf(const Control& control) {
    return dynamic_cast<WidgetType&>(*Widget().ViewOf(control)->Widget());
  }

  static void Mouse(QWidget& widget, QEvent::Type type, const QPoint& point,
                    Qt::MouseButton button = Qt::LeftButton) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }

  /// What the pointer hits of a widget.
  QWidget& TargetOf(const Control& control) {
    auto* area = dynamic_cast<QAbstractScrollArea*>(&WidgetOf(control));
    return area != nullptr ? *area->viewport() : WidgetOf(control);
  }

  void Press(const Control& control) {
    QWidget& widget = TargetOf(control);
    Mouse(widget, QEvent::MouseButtonPress, widget.rect().center());
  }

  void Release(const Control& control, const QPoint& away = {}) {
    QWidget& widget = TargetOf(control);
    Mouse(widget, QEvent::MouseButtonRelease, widget.rect().center() + away);
  }

  void Click(const Control& control) {
    Press(control);
    Release(control);
  }

  /// A key to the widget that has the focus of the window. Its shortcuts are asked first, as by a keyboard.
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
    QWidget* const target = Widget().focusWidget() != nullptr ? Widget().focusWidget() : &Widget();
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &event);
  }

  /// The focus goes to a control by the program.
  void FocusOn(Control& control) {
    SetFocus(control);
    Settle();
  }

  /// An input method settles one piece of text and composes the next.
  void Compose(const QString& settled, const QString& composing) {
    QInputMethodEvent event(composing, {});
    event.setCommitString(settled);
    QApplication::sendEvent(Widget().focusWidget(), &event);
  }

  void Type(const QString& text) {
    for (const QChar character : text) Key(character.toUpper().unicode(), Qt::NoModifier, character);
  }

  /// Whether the widget with the focus keeps a shortcut to itself.
  bool KeepsKey(int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent event(QEvent::ShortcutOverride, key, modifiers);
    event.ignore();
    QApplication::sendEvent(Widget().focusWidget(), &event);
    return event.isAccepted();
  }

  /// Lets the clock run and serves what comes.
  static void Wait(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
  }

  static void Wheel(QWidget& widget, int turns) {
    const QPointF point = widget.rect().center();
    QWheelEvent event(point, widget.mapToGlobal(point), {}, QPoint(0, turns * 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }

  void Listen() {
    for (Control* control : form->controls) {
      for (Event* event : control->events) {
        event->Bind([this, control, event](int) { Heard(*control, *event); });
      }
    }
    form->Resize.Bind([this](int) { events.push_back("Resize"); });
  }

  void Heard(const Control& control, const Event& event) {
    events.push_back(control.IndexedName() + "." + event.Name());
    const auto reaction = reactions.find(events.back());
    if (reaction != reactions.end()) reaction->second();
  }

  using Events = std::vector<std::string>;

  SimulatedMachine simulated;
  Stage stage;
  DesktopWindows windows{stage};
  Machine machine = MachineWith(simulated, windows);
  std::unique_ptr<Program> program = std::make_unique<Program>(machine);
  std::shared_ptr<TestForm> form = std::make_shared<TestForm>(program->desk);
  Events events;
  /// What the program does at an event.
  std::map<std::string, std::function<void()>> reactions;
};

}  // namespace veldrin
