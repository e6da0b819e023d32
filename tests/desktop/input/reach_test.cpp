// The ring around what F6 has reached, and the windows that it belongs to.
#include "desktop/input/reach.h"

#include "tests/desktop/test_window.h"

namespace veldrin {
namespace {

class ReachRingTest : public WidgetsTest {
 protected:
  void Reach(const Control& control) {
    for (int i = 0; i < 5 && ReachedIn(Widget()) != &control; ++i) Key(Qt::Key_F6, Qt::ShiftModifier);
    ASSERT_EQ(ReachedIn(Widget()), &control);
  }

  QObject* Foremost() { return Widget().Client().children().last(); }
};

TEST_F(ReachRingTest, StaysInFrontOfWhatIsRaised) {
  Reach(form->Picture1);
  form->Picture1.BringToFront();
  Settle();
  EXPECT_EQ(Foremost(), &Widget().Ring());
  EXPECT_TRUE(Widget().Ring().isVisible());
}

TEST_F(ReachRingTest, IsNotSeenWhileItsWidgetIsCovered) {
  Reach(form->Spin1);
  form->Picture1.Left = form->Spin1.Left.get() - 600;
  form->Picture1.Top = 0;
  form->Picture1.BringToFront();
  Settle();
  EXPECT_FALSE(Widget().Ring().isVisible());
  EXPECT_EQ(ReachedIn(Widget()), &form->Spin1);
  form->Picture1.Visible = false;
  Settle();
  EXPECT_TRUE(Widget().Ring().isVisible());
  EXPECT_EQ(Foremost(), &Widget().Ring());
}

TEST_F(ReachRingTest, KeysBehindWhatCoversItAreTheFocusControls) {
  SetFocus(form->Text1);
  Reach(form->Spin1);
  form->Picture1.Left = form->Spin1.Left.get() - 600;
  form->Picture1.Top = 0;
  form->Picture1.BringToFront();
  Settle();
  events.clear();
  Key(Qt::Key_Up);
  EXPECT_EQ(events, Events{"Text1.KeyDown"});
  EXPECT_EQ(ReachedIn(Widget()), nullptr);
}

TEST_F(ReachRingTest, EachWindowHasItsOwn) {
  TestForm other(program->desk);
  other.Spin1.SpinUp.Bind([](int) {});
  other.LoadWindow();
  other.Show();
  Reach(form->Spin1);
  FormWidget& widget = *windows.FormOf(other);
  EXPECT_EQ(ReachedIn(widget), nullptr);
  EXPECT_EQ(ReachedIn(widget.Client()), nullptr);
  EXPECT_EQ(ReachedIn(WidgetOf(form->Text1)), &form->Spin1) << "any widget of the window will do";
  const QWidget stranger;
  EXPECT_EQ(ReachedIn(stranger), nullptr);
  other.UnloadWindow();
}

}  // namespace
}  // namespace veldrin
