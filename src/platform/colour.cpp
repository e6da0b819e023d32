#include "platform/colour.h"

#include <array>

namespace veldrin {

namespace {

constexpr int kFirstGearColour = 9;

}  // namespace

Colour PaletteColour(int number) {
  static constexpr std::array<Colour, 16> kPalette = {
      Rgb(0, 0, 0),       Rgb(0, 0, 128),   Rgb(0, 128, 0),   Rgb(0, 128, 128),
      Rgb(128, 0, 0),     Rgb(128, 0, 128), Rgb(128, 128, 0), Rgb(192, 192, 192),
      Rgb(128, 128, 128), Rgb(0, 0, 255),   Rgb(0, 255, 0),   Rgb(0, 255, 255),
      Rgb(255, 0, 0),     Rgb(255, 0, 255), Rgb(255, 255, 0), Rgb(255, 255, 255)};
  return kPalette[static_cast<std::size_t>(number) % kPalette.size()];
}

Colour DesignedGearColour(int gear) {
  return PaletteColour(kFirstGearColour + gear - 1);
}

}  // namespace veldrin
