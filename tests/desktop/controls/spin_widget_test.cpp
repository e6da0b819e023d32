#include "desktop/controls/spin_widget.h"

#include "tests/desktop/event_counts.h"
#include "tests/desktop/test_window.h"

namespace veldrin {
namespace {

class SpinWidgetTest : public WidgetsTest {
 protected:
  SpinWidget& Spin() { return WidgetOf<SpinWidget>(form->Spin1); }

  /// A piece of a turn; 120 are a whole one.
  void TurnFinely(int delta) {
    const QPointF point = Spin().rect().center();
    QWheelEvent event(point, Spin().mapToGlobal(point), {}, QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Spin(), &event);
  }

  QImage Picture() { return Spin().grab().toImage(); }

  long Count(const std::string& event) const { return std::count(events.begin(), events.end(), event); }
};

TEST_F(SpinWidgetTest, HeldArrowGoesItsWayWhateverTheWheelDoes) {
  Mouse(Spin(), QEvent::MouseButtonPress, Spin().ArrowRect(true).center());
  const QImage held = Picture();
  TurnFinely(15);
  EXPECT_EQ(events, Events{"Spin1.SpinUp"}) << "no whole turn";
  TurnFinely(-135);
  EXPECT_EQ(Count("Spin1.SpinDown"), 1);
  EXPECT_EQ(Picture(), held);
  Wait(700);
  Mouse(Spin(), QEvent::MouseButtonRelease, Spin().ArrowRect(true).center());
  EXPECT_EQ(Count("Spin1.SpinDown"), 1);
  EXPECT_GE(Count("Spin1.SpinUp"), 3);
}

TEST_F(SpinWidgetTest, TurnByTheKeyboardLeavesTheHeldArrow) {
  Mouse(Spin(), QEvent::MouseButtonPress, Spin().ArrowRect(false).center());
  Spin().Turn(true);
  Wait(600);
  Mouse(Spin(), QEvent::MouseButtonRelease, Spin().ArrowRect(false).center());
  EXPECT_EQ(Count("Spin1.SpinUp"), 1);
}

TEST_F(SpinWidgetTest, ArrowIsPaintedAnewWhenItGoesDownAndWhenItComesUp) {
  const QPoint arrow = Spin().ArrowRect(true).center();
  PaintCount painted(Spin());
  Mouse(Spin(), QEvent::MouseButtonPress, arrow);
  EXPECT_EQ(painted.Taken(), 1);
  Mouse(Spin(), QEvent::MouseButtonRelease, arrow);
  EXPECT_EQ(painted.Taken(), 2);
}

TEST_F(SpinWidgetTest, PiecesOfATurnAddUp) {
  for (int i = 0; i < 8; ++i) TurnFinely(-30);
  EXPECT_EQ(events, (Events{"Spin1.SpinDown", "Spin1.SpinDown"}));
}

}  // namespace
}  // namespace veldrin
