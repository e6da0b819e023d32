// Windows that keep the others from answering: what the desktop knows of them, and how the user finds them.
#include "desktop/windows/placement.h"
#include "tests/desktop/test_window.h"
#include "window_script/shown_check.h"

#include <QComboBox>
#include <QLineEdit>
#include <QWindow>

namespace veldrin {
namespace {

class ModalWindowTest : public WidgetsTest {
 protected:
  static constexpr Qt::WindowFlags kAway = Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint;

  static void ServeEvents() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  FormWidget& WidgetOfWindow(const Window& window) { return *windows.FormOf(window); }

  /// Shows a window as the program does at the beginning of a modal loop.
  FormWidget& Open(Window& window) {
    window.LoadWindow();
    window.isModal = true;
    window.desk.modal.push_back(&window);
    window.Show();
    ServeEvents();
    return WidgetOfWindow(window);
  }

  static void Close(Window& window) {
    window.Hide();
    window.isModal = false;
    ServeEvents();
  }

  static const QWindow* OwnerOf(const FormWidget& widget) { return widget.windowHandle()->transientParent(); }
};

TEST_F(ModalWindowTest, BelongsToTheWindowThatItWasCalledFrom) {
  TestForm first(program->desk);
  TestForm second(program->desk);
  EXPECT_EQ(OwnerOf(Widget()), nullptr);
  FormWidget& outer = Open(first);
  EXPECT_EQ(outer.windowType(), Qt::Dialog);
  EXPECT_EQ(OwnerOf(outer), Widget().windowHandle());
  FormWidget& inner = Open(second);
  EXPECT_EQ(OwnerOf(inner), outer.windowHandle());
  EXPECT_EQ(OwnerOf(outer), Widget().windowHandle());
  Close(second);
  Close(first);
  second.UnloadWindow();
  first.UnloadWindow();
}

TEST_F(ModalWindowTest, NameThatHasTheFocusWhenItComesUpIsTypedOver) {
  TestForm modal(program->desk);
  modal.Combo1.Text = "*.nx4";
  SetFocus(modal.Combo1);
  for (int time = 0; time < 2; ++time) {
    auto& line = *Open(modal).findChild<QComboBox*>()->lineEdit();
    EXPECT_EQ(line.selectedText(), "*.nx4");
    line.deselect();
    Close(modal);
  }
  modal.UnloadWindow();
}

TEST_F(ModalWindowTest, CannotBePutAwayAlone) {
  TestForm modal(program->desk);
  modal.Resize.Bind([](int) {});
  FormWidget& widget = Open(modal);
  EXPECT_EQ(widget.windowFlags() & kAway, Qt::WindowMaximizeButtonHint);
  EXPECT_TRUE(widget.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_EQ(Widget().windowFlags() & kAway, kAway);
  Close(modal);
  modal.UnloadWindow();
}

TEST_F(ModalWindowTest, IsAWindowLikeOthersWhenItIsShownLikeThem) {
  TestForm other(program->desk);
  FormWidget& widget = Open(other);
  const QRect place = widget.geometry();
  Close(other);
  other.Show();
  ServeEvents();
  EXPECT_TRUE(widget.isVisible());
  EXPECT_EQ(widget.windowModality(), Qt::NonModal);
  EXPECT_EQ(widget.windowType(), Qt::Window);
  EXPECT_EQ(OwnerOf(widget), nullptr);
  EXPECT_TRUE(widget.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_EQ(widget.geometry(), place);
  other.UnloadWindow();
}

TEST_F(ModalWindowTest, KeepsItsPlaceSizeAndFocusWhenItBecomesModalWhileItIsShown) {
  TestForm modal(program->desk);
  modal.LoadWindow();
  modal.Show();
  modal.MoveFocus(&modal.Text2);
  FormWidget& widget = WidgetOfWindow(modal);
  widget.move(90, 60);
  ServeEvents();
  const QRect place = widget.geometry();
  modal.isModal = true;
  program->desk.modal.push_back(&modal);
  widget.BecomeModal();
  ServeEvents();
  EXPECT_TRUE(widget.isVisible());
  EXPECT_EQ(widget.windowModality(), Qt::ApplicationModal);
  EXPECT_EQ(OwnerOf(widget), Widget().windowHandle());
  EXPECT_EQ(widget.geometry(), place);
  EXPECT_EQ(modal.Left.get(), 90 * 15);
  EXPECT_EQ(modal.Top.get(), 60 * 15);
  EXPECT_EQ(widget.focusWidget(), widget.ViewOf(modal.Text2)->Widget());
  EXPECT_TRUE(DifferencesIn(widget, stage).empty());
  Close(modal);
  modal.UnloadWindow();
}

TEST_F(ModalWindowTest, ComesBackWhenTheUserGoesToAWindowBehindIt) {
  TestForm modal(program->desk);
  FormWidget& widget = Open(modal);
  widget.showMinimized();
  ServeEvents();
  ASSERT_EQ(modal.WindowState.get(), static_cast<int>(WindowState::Minimised));
  Widget().activateWindow();
  ServeEvents();
  EXPECT_FALSE(widget.isMinimized());
  EXPECT_TRUE(widget.isActiveWindow());
  EXPECT_EQ(program->desk.active, &modal);
  EXPECT_EQ(modal.WindowState.get(), static_cast<int>(WindowState::Normal));
  Close(modal);
  EXPECT_TRUE(Widget().isActiveWindow());
  EXPECT_EQ(program->desk.active, form.get());
  modal.UnloadWindow();
}

TEST_F(ModalWindowTest, WithoutAFrameIsOneToo) {
  struct Frameless : Window {
    explicit Frameless(Desk& theDesk) : Window(theDesk, "Form91", {300, 450, 3000, 1500}, {}, false, false) {}
  };
  Frameless modal(program->desk);
  FormWidget& widget = Open(modal);
  EXPECT_TRUE(widget.isVisible());
  EXPECT_EQ(widget.windowType(), Qt::Dialog);
  EXPECT_TRUE(widget.windowFlags().testFlag(Qt::FramelessWindowHint));
  EXPECT_EQ(OwnerOf(widget), Widget().windowHandle());
  windows.SetEllipticRegion(modal, 10, 10, 110, 60);
  EXPECT_EQ(widget.size(), QSize(100, 50));
  EXPECT_FALSE(widget.mask().isEmpty());
  Close(modal);
  modal.UnloadWindow();
}

TEST_F(ModalWindowTest, OwnerMayGoFirst) {
  TestForm modal(program->desk);
  FormWidget& widget = Open(modal);
  form->UnloadWindow();
  Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ServeEvents();
  EXPECT_TRUE(widget.isVisible());
  EXPECT_EQ(OwnerOf(widget), nullptr);
  Close(modal);
  modal.UnloadWindow();
}

}  // namespace
}  // namespace veldrin
