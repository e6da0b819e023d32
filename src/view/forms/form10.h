// About: a window without a frame whose background is one picture of 478 by 322 pixels. In twips, that
// picture has a pale title strip down to 330, the artwork down to 1800, and two pale panels: 150, 1905 to
// 7020, 4080 under the figures, whose captions it carries between 240 and 1740 at the height of the labels,
// and 150, 4185 to 7020, 4680 under the link. Rolled up, only the strip is left, and the lines are its edge.
#pragma once

#include "view/window.h"

namespace veldrin {

/// Pictures of the strip's two buttons, at rest and pressed, 13 by 13 pixels.
constexpr int kCloseImage = 2004;
constexpr int kClosePressedImage = 2005;
constexpr int kRollImage = 2006;
constexpr int kRollPressedImage = 2007;

struct Form10 : Window {
  explicit Form10(Desk& theDesk);
  ~Form10();

  // clang-format off
  Label   Label41      {"Label41",       *this, { 120,   30, 3600,  270}, {.caption = "この「べるどりん君」について", .back = kPale, .transparent = true}};
  Picture Picture_Roll {"Picture_Roll",  *this, {6660,   60,  195,  195}, {.spoken = "Roll up or down"}};
  Picture Picture_Close{"Picture_Close", *this, {6900,   60,  195,  195}, {.spoken = "Close"}};
  Line    Line1        {"Line1",         *this,     0,  300, 7170,  300, PaletteColour(8)};
  Line    Line2        {"Line2",         *this,     0,  315, 7170,  315, kBlack};

  Label   Label_Version{"Label_Version", *this, {1800, 2010, 5130,  255}, {.back = kPale, .transparent = true}};
  Label   Label_CPU    {"Label_CPU",     *this, {1800, 2355, 5130,  255}, {.back = kPale, .transparent = true}};
  Label   Label_Ram    {"Label_Ram",     *this, {1800, 2700, 1140,  255}, {.back = kPale, .transparent = true}};
  Picture Picture1     {"Picture1",      *this, {3060, 2700, 2850,  240}, {.back = kWhite, .border = true, .spoken = "Free memory"}};
  Label   Label_Free   {"Label_Free",    *this, {6030, 2700,  900,  255}, {.back = kPale, .transparent = true}};
  Label   Label_VirRam {"Label_VirRam",  *this, {1800, 3045, 5130,  255}, {.back = kPale, .transparent = true}};
  Label   Label_Res    {"Label_Res",     *this, {1800, 3390, 5130,  255}, {.back = kPale, .transparent = true}};
  Label   Label_HDD    {"Label_HDD",     *this, {1800, 3735, 1140,  255}, {.back = kPale, .transparent = true}};
  Picture Picture2     {"Picture2",      *this, {3060, 3735, 2850,  240}, {.back = kWhite, .border = true, .spoken = "Free disk"}};
  Label   Label3       {"Label3",        *this, {1800, 4305, 3300,  255}, {.caption = "https://veldrin.example/", .fore = Rgb(0, 0, 255), .back = kPale, .transparent = true}};
  // clang-format on

 private:
  static constexpr Colour kPale = Rgb(232, 236, 244);
};

}  // namespace veldrin
