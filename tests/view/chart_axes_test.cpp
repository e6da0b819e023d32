// The axes of a chart: the same in every window that has one, at the scale that the windows are designed
// with.
#include "view/forms/chart_axes.h"

#include "tests/view/told_desk.h"
#include "view/forms/form2.h"
#include "view/forms/form4.h"
#include "view/forms/form5.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

// Twips; 15000 rev/min on a plot 3960 wide, 340 km/h on one 5520 high.
template <class Form>
void ExpectAxesOf(Form& form, float unitWidth) {
  SCOPED_TRACE(form.name);
  EXPECT_FLOAT_EQ(form.Line4[0].X1, 483.84F);
  EXPECT_FLOAT_EQ(form.Line4[10].X1, 3144.96F);
  EXPECT_FLOAT_EQ(form.Line4[10].X2, 3144.96F);
  EXPECT_FLOAT_EQ(form.Line4[24].Y1, 5520);
  EXPECT_FLOAT_EQ(form.Line4[24].Y2, 5640);
  EXPECT_FLOAT_EQ(form.Line3[0].Y1, 5520);
  EXPECT_NEAR(form.Line3[17].Y1, 0, 0.001) << "the scale is narrowed to 32 bits";
  EXPECT_NEAR(form.Line3[17].Y2, 0, 0.001);
  EXPECT_FLOAT_EQ(form.Line3[18].X1, 360);
  EXPECT_FLOAT_EQ(form.Line3[18].X2, 480);
  EXPECT_NEAR(form.Label18.Top, 559.41, 0.01);
  EXPECT_NEAR(form.Label19.Top, 2182.94, 0.01);
  EXPECT_NEAR(form.Label20.Top, 3806.47, 0.01);
  const float lefts[] = {1770, 3040, 4360, 5680, 3480};
  for (int i = 0; i <= 4; ++i) EXPECT_FLOAT_EQ(form.Label22[i].Left, lefts[i]) << i;
  EXPECT_FLOAT_EQ(form.Label22[0].Top, 5640);
  EXPECT_FLOAT_EQ(form.Label22[4].Top, 5805);
  EXPECT_FLOAT_EQ(form.Label22[0].Width, 240);
  EXPECT_FLOAT_EQ(form.Label22[4].Width, unitWidth);
  EXPECT_EQ(form.Label22[3].Caption.get(), "20");
  EXPECT_EQ(form.Label22[4].Caption.get(), "(x1000rpm)");
}

TEST_F(ToldDesk, EveryWindowWithAChartHasTheSameAxes) {
  Form2 form2(desk);
  Form4 form4(desk);
  Form5 form5(desk);
  ExpectAxesOf(form2, 900);
  ExpectAxesOf(form4, 960);
  ExpectAxesOf(form5, 960);
}

TEST(ChartAxes, TicksAndNumeralsFollowTheScale) {
  // 24000 rev/min and 100 km/h.
  EXPECT_FLOAT_EQ(TickAcross(24, 165), 4475.52F);
  EXPECT_FLOAT_EQ(TickUp(5, 1104), 0);
  EXPECT_FLOAT_EQ(NumeralLeft(0, 165), 1275);
  EXPECT_FLOAT_EQ(NumeralLeft(3, 165), 3700);
  EXPECT_FLOAT_EQ(NumeralTop(5, 1104), -90);
}

TEST(Places, StandBelowAndBesideEachOther) {
  const Place below = Downward({10, 20, 30, 40}, 50)(2);
  EXPECT_EQ(below.left, 10);
  EXPECT_EQ(below.top, 120);
  EXPECT_EQ(below.width, 30);
  EXPECT_EQ(below.height, 40);
  const Place beside = Rightward({10, 20, 30, 40}, 50, 1)(3);
  EXPECT_EQ(beside.left, 110);
  EXPECT_EQ(beside.top, 20);
  EXPECT_EQ(beside.width, 30);
  EXPECT_EQ(beside.height, 40);
  EXPECT_EQ(At({10, 20, 30, 40})(7).left, 10);
}

}  // namespace
}  // namespace veldrin
