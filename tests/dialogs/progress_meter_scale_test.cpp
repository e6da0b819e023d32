// The scale of the progress meter.
#include "dialogs/progress_meter.h"
#include "tests/dialogs/drawn_meter.h"

#include <cstdint>
#include <limits>
#include <string>

namespace veldrin {
namespace {

TEST_F(Meter, HoldsTheValueWithinItsEnds) {
  struct Case {
    std::int32_t value;
    std::int32_t held;
  };
  const Case cases[] = {{-1, 0},
                        {0, 0},
                        {1, 1},
                        {99, 99},
                        {100, 100},
                        {101, 100},
                        {std::numeric_limits<std::int32_t>::min(), 0},
                        {std::numeric_limits<std::int32_t>::max(), 100}};
  for (const Case& c : cases) {
    Drawn();
    meter.SetValue(c.value);
    EXPECT_EQ(meter.Value(), c.held) << c.value;
    EXPECT_EQ(Drawn()[2], "fill 0 0 " + std::to_string(c.held) + " 1000 0,0,128 mode=notxor") << c.value;
  }
}

TEST_F(Meter, AMaxBelowNothingIsTheValueItself) {
  clsProgressBar withoutSurface;
  withoutSurface.SetMax(-5);
  EXPECT_EQ(withoutSurface.Value(), -5);
  meter.SetMax(-5);
  EXPECT_EQ(meter.Value(), -5);
  for (const std::int32_t value : {-7, -5, -3, -1, 0, 10}) {
    withoutSurface.SetValue(value);
    meter.SetValue(value);
    EXPECT_EQ(withoutSurface.Value(), -5) << value;
    EXPECT_EQ(meter.Value(), -5) << value;
  }
}

TEST_F(Meter, AHigherMaxIsTheScaleInBothDirections) {
  Drawn();
  meter.SetMax(500);
  EXPECT_EQ(meter.Max(), 500);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 500, 500}));
  // A character is 22.5 wide, a line 108 high.
  EXPECT_EQ(Drawn(),
            (Lines{"fill 0 0 500 500 255,255,255 mode=copy", Text("227.5 196", "0%"),
                   "fill 0 0 0 500 0,0,128 mode=notxor", "fill 0 0 500 500 255,255,255 mode=notxor"}));
  meter.SetValue(400);
  EXPECT_EQ(meter.Value(), 400);
}

TEST_F(Meter, ALowerMaxTakesTheValueAlong) {
  meter.SetValue(80);
  meter.SetMax(50);
  EXPECT_EQ(meter.Value(), 50);
  meter.SetMax(200);
  EXPECT_EQ(meter.Value(), 50);
}

TEST_F(Meter, SettingTheDirectionResetsTheScale) {
  meter.SetMax(50);
  surface.SetScale({0, 0, 7, 7});
  Drawn();
  meter.SetDirection(0);
  EXPECT_EQ(surface.UserScale(), (Scale{0, 0, 50, 50}));
  // Drawn for the scale, and once more for the direction.
  EXPECT_EQ(Drawn().size(), 8U);
}

TEST_F(Meter, ScaleIsTakenInWholeNumbers) {
  surface.SetScale({0, 0, 100.5, 40.5});
  Drawn();
  meter.SetText("");
  meter.SetShowNumber(false);
  Drawn();
  meter.SetValue(30);
  // Rounded half to even, but for the lower edge of the empty part.
  EXPECT_EQ(Drawn(), (Lines{"fill 0 0 100 40 255,255,255 mode=copy", "fill 0 0 30 40 0,0,128 mode=notxor",
                            "fill 30 0 100 40.5 255,255,255 mode=notxor"}));
}

TEST_F(Meter, FromTheBottomTheScaleIsTakenInWholeNumbersAsWell) {
  meter.SetDirection(1);
  surface.SetScale({0, 0, 101.5, 41.5});
  Drawn();
  meter.SetValue(30);
  EXPECT_EQ(Drawn(),
            (Lines{"fill 0 0 102 42 255,255,255 mode=copy", Text("44.14875 16.518", "30%"),
                   "fill 0 42 102 12 0,0,128 mode=notxor", "fill 0 0 102 30 255,255,255 mode=notxor"}));
}

}  // namespace
}  // namespace veldrin
