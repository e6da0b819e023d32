#include "platform/colour.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(Colours, AreBlueGreenRed) {
  constexpr Colour colour = Rgb(0x12, 0x34, 0x56);
  EXPECT_EQ(colour.bgr, 0x563412U);
  EXPECT_EQ(colour.Red(), 0x12);
  EXPECT_EQ(colour.Green(), 0x34);
  EXPECT_EQ(colour.Blue(), 0x56);
  EXPECT_EQ(Colour{}, kBlack);
  EXPECT_EQ(Rgb(255, 0, 0).Red(), 255);
  EXPECT_EQ(Rgb(0, 255, 0).Green(), 255);
  EXPECT_EQ(Rgb(0, 0, 255).Blue(), 255);
}

TEST(Colours, WithNamesAreWhatTheyAreCalled) {
  EXPECT_EQ(kBlack.bgr, 0U);
  EXPECT_EQ(kWhite.bgr, 0xFFFFFFU);
  EXPECT_EQ(kRed.bgr, 0x0000FFU);
  EXPECT_EQ(kYellow.bgr, 0x00FFFFU);
  EXPECT_EQ(kMagenta.bgr, 0xFF00FFU);
  EXPECT_EQ(kLightGrey.bgr, 0xC0C0C0U);
  EXPECT_EQ(kDarkBlue.bgr, 0x800000U);
}

TEST(Colours, ThePaletteIsTheClassicSixteen) {
  const unsigned palette[] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                              0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  for (int number = 0; number < 16; ++number) {
    EXPECT_EQ(PaletteColour(number).bgr, palette[number]) << number;
    EXPECT_EQ(PaletteColour(number + 16).bgr, palette[number]) << number << " again";
  }
}

}  // namespace
}  // namespace veldrin
