#include "desktop/windows/zoom.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(Zoom, FitsTheScreenInSteps) {
  EXPECT_EQ(FittingZoom(1024, 768), 1.25);
  EXPECT_EQ(FittingZoom(1366, 768), 1.25);
  EXPECT_EQ(FittingZoom(1920, 1080), 1.75);
  EXPECT_EQ(FittingZoom(2560, 1440), 2.5);
  EXPECT_EQ(FittingZoom(1080, 1920), 1.5);
}

TEST(Zoom, StaysWithinItsEndsOnAnyScreen) {
  EXPECT_EQ(FittingZoom(7680, 4320), Zoom::kMost);
  EXPECT_EQ(FittingZoom(320, 240), Zoom::kLeast);
  EXPECT_EQ(FittingZoom(0, 0), Zoom::kLeast);
}

TEST(Zoom, TellsOnlyChanges) {
  Zoom zoom;
  int told = 0;
  zoom.changed = [&] { ++told; };
  zoom.Set(1);
  EXPECT_EQ(told, 0);
  zoom.Enlarge();
  EXPECT_EQ(zoom.Factor(), 1.25);
  zoom.Set(9);
  EXPECT_EQ(zoom.Factor(), Zoom::kMost);
  zoom.Enlarge();
  zoom.Set(0);
  EXPECT_EQ(zoom.Factor(), Zoom::kLeast);
  EXPECT_EQ(told, 3);
}

TEST(Zoom, FifteenTwipsAreAPixel) {
  Zoom zoom;
  EXPECT_EQ(zoom.Pixels(150), 10);
  EXPECT_EQ(zoom.Twips(10), 150);
  zoom.Set(2);
  EXPECT_EQ(zoom.Pixels(150), 20);
  EXPECT_EQ(zoom.Twips(20), 150);
}

}  // namespace
}  // namespace veldrin
