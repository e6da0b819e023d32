// Colours as 0x00BBGGRR numbers, and the classic palette of sixteen.
#pragma once

#include <cstdint>

namespace veldrin {

/// A colour, 0x00BBGGRR.
struct Colour {
  std::uint32_t bgr = 0;

  constexpr int Red() const { return static_cast<int>(bgr & 0xFF); }
  constexpr int Green() const { return static_cast<int>(bgr >> 8 & 0xFF); }
  constexpr int Blue() const { return static_cast<int>(bgr >> 16 & 0xFF); }

  friend constexpr bool operator==(Colour, Colour) = default;
};

constexpr Colour Rgb(int red, int green, int blue) {
  return {static_cast<std::uint32_t>(blue << 16 | green << 8 | red)};
}

inline constexpr Colour kBlack = Rgb(0, 0, 0);
inline constexpr Colour kWhite = Rgb(255, 255, 255);
inline constexpr Colour kRed = Rgb(255, 0, 0);
inline constexpr Colour kYellow = Rgb(255, 255, 0);
inline constexpr Colour kMagenta = Rgb(255, 0, 255);
inline constexpr Colour kLightGrey = Rgb(192, 192, 192);
inline constexpr Colour kDarkBlue = Rgb(0, 0, 128);

/// Entry 0..15 of the classic palette: 0 black to 7 light grey, 8 dark grey, 9 to 14 the bright blue, green,
/// cyan, red, magenta and yellow, 15 white. Numbers beyond begin again at 0.
Colour PaletteColour(int number);

/// The colour of gear 1 to 6 as long as nobody has chosen another, the bright ones in their order.
Colour DesignedGearColour(int gear);

}  // namespace veldrin
