// The splash window: a picture with the program's name, and the timer that sequences the start.
#pragma once

#include "view/window.h"

namespace veldrin {

struct Form1 : Window {
  explicit Form1(Desk& theDesk);
  ~Form1();

  // clang-format off
  Picture      Pic1{"Pic1",     *this, {0, 0, 7500, 1500},     {.back = kDarkBlue}};
  Label        Label1{"Label1", Pic1,  {1500, 195, 4500, 735}, {.caption = "Veldrin", .fore = kWhite, .back = kDarkBlue, .fontSize = 30, .fontBold = true, .align = Align::Centre, .transparent = true}};
  Label        Label2{"Label2", Pic1,  {1500, 945, 4500, 285}, {.caption = "Motorcycle gearing", .fore = kLightGrey, .back = kDarkBlue, .fontSize = 11, .align = Align::Centre, .transparent = true}};
  TimerControl Timer1{"Timer1", *this, 100};
  // clang-format on
};

}  // namespace veldrin
