#include "desktop/windows/first_steps.h"

#include "tests/desktop/main_window.h"

#include <QImage>

namespace veldrin {
namespace {

class FirstStepsTest : public MainWindowTest {};

TEST_F(FirstStepsTest, AreThereWithAMachineAndNoPlan) {
  EXPECT_FALSE(AwaitsFirstPlan(*program));
  RunEvent(*program, [&] { OpenDroppedFile(*program, "C:\\VELDRIN\\LIST\\NX4.RAT"); });
  EXPECT_TRUE(AwaitsFirstPlan(*program));
  RunEvent(*program, [&] { user::Click(program->form2.Command2); });
  EXPECT_FALSE(AwaitsFirstPlan(*program));
}

TEST_F(FirstStepsTest, ArePaintedLeftOfTheChartInBothLanguages) {
  RunEvent(*program, [&] { OpenDroppedFile(*program, "C:\\VELDRIN\\LIST\\NX4.RAT"); });
  const double zoom = stage.zoom.Factor();
  const double chart = Widget().Client().PlaceOf(WidgetOf(program->form2.Picture21)).left() / zoom;
  QImage none(700, 500, QImage::Format_RGB32);
  none.fill(Qt::blue);
  QImage last;
  for (const bool japanese : {false, true}) {
    QImage painted = none;
    {
      QPainter painter(&painted);
      PaintFirstSteps(painter, 1, japanese);
    }
    EXPECT_NE(painted, none);
    for (int y = 0; y < painted.height(); ++y) {
      for (int x = static_cast<int>(chart); x < painted.width(); ++x) {
        ASSERT_EQ(painted.pixel(x, y), none.pixel(x, y)) << x << ' ' << y;
      }
    }
    EXPECT_NE(painted, last);
    last = painted;
  }
}

TEST_F(WidgetsTest, FirstStepsAreInTheMainWindowAlone) {
  Settle();
  const QImage client = Widget().Client().grab().toImage();
  // Between the controls on the left, where the first line would stand.
  for (int y = 118; y < 137; ++y) {
    for (int x = 18; x < 108; ++x) ASSERT_EQ(client.pixelColor(x, y), QColor(0, 0, 128)) << x << ' ' << y;
  }
}

}  // namespace
}  // namespace veldrin
