#include "dialogs/about_window.h"
#include "tests/desktop/test_window.h"

namespace veldrin {
namespace {

/// Windows on the screen that keep which of them is to follow the pointer.
struct DraggedWindows : DesktopWindows {
  using DesktopWindows::DesktopWindows;
  std::vector<const Window*> dragged;

  void StartDrag(Window& window) override { dragged.push_back(&window); }
};

/// The About window on the screen, and what the mouse does to it.
class AboutDragTest : public ::testing::Test {
 protected:
  AboutDragTest() {
    stage.input.Serve(program.get());
    AttachAboutWindow(*program);
    program->form10.Load().Show();
    QCoreApplication::processEvents();
  }

  ~AboutDragTest() override { TakeDown(simulated, stage, windows); }

  Form10& Form() { return *program->form10; }
  FormWidget& Widget() { return *windows.FormOf(Form()); }

  /// A press at a place of the window in twips, which goes to the widget that the pointer is over.
  void Press(double left, double top, Qt::MouseButton button = Qt::LeftButton) {
    const QPoint place(qRound(stage.zoom.Pixels(left)), qRound(stage.zoom.Pixels(top)));
    QWidget* const hit = Widget().childAt(place);
    QWidget& target = hit != nullptr ? *hit : Widget();
    const QPoint point = target.mapFrom(&Widget(), place);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
      QMouseEvent event(type, point, target.mapToGlobal(point), button, held, Qt::NoModifier);
      QApplication::sendEvent(&target, &event);
    }
  }

  void PressInside(const PlacedControl& control) {
    Press(control.Left + control.Width / 2, control.Top + control.Height / 2);
  }

  using Dragged = std::vector<const Window*>;

  SimulatedMachine simulated;
  Stage stage;
  DraggedWindows windows{stage};
  Machine machine = MachineWith(simulated, windows);
  std::unique_ptr<Program> program = std::make_unique<Program>(machine);
};

TEST_F(AboutDragTest, LeftPressOnTheBackgroundMovesTheWindow) {
  Dragged dragged;
  // The strip, the artwork, a panel between two captions, and the rim below.
  for (const auto& [left, top] : {std::pair{5000, 150}, {3500, 1000}, {500, 2300}, {7100, 4800}}) {
    Press(left, top);
    dragged.push_back(&Form());
    EXPECT_EQ(windows.dragged, dragged) << left << " " << top;
  }
}

TEST_F(AboutDragTest, RolledUpWindowMovesByItsStrip) {
  PressInside(Form().Picture_Roll);
  ASSERT_EQ(Form().Height, 330);
  Press(5000, 150);
  EXPECT_EQ(windows.dragged, Dragged{&Form()});
}

TEST_F(AboutDragTest, OtherButtonsMoveNothing) {
  Press(5000, 150, Qt::RightButton);
  Press(5000, 150, Qt::MiddleButton);
  EXPECT_EQ(windows.dragged, Dragged{});
}

TEST_F(AboutDragTest, PressOnWhatStandsOnTheBackgroundMovesNothing) {
  Form10& form10 = Form();
  form10.Label41.Visible = true;
  const PlacedControl* const controls[] = {
      &form10.Label41,    &form10.Label_Version, &form10.Label_CPU, &form10.Label_Ram,
      &form10.Label_Free, &form10.Label_VirRam,  &form10.Label_Res, &form10.Label_HDD,
      &form10.Label3,     &form10.Picture1,      &form10.Picture2,  &form10.Picture_Roll,
  };
  for (const PlacedControl* control : controls) {
    PressInside(*control);
    EXPECT_EQ(windows.dragged, Dragged{}) << control->name;
  }
}

TEST_F(AboutDragTest, ClosingPictureClosesAndMovesNothing) {
  PressInside(Form().Picture_Close);
  EXPECT_FALSE(static_cast<bool>(program->form10));
  EXPECT_EQ(windows.dragged, Dragged{});
}

}  // namespace
}  // namespace veldrin
