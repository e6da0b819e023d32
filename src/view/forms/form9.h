// The colours of the gears: a row of those in use, a row of those picked, a button for each gear.
#pragma once

#include "view/control_array.h"

namespace veldrin {

struct Form9 : Window {
  explicit Form9(Desk& theDesk);
  ~Form9();

  // clang-format off
  ControlArray<Label>   Label2  {0, 1, Elements<Label>  ("Label2",   *this, Downward({150, 330,  720, 255}, 720), {}, {"NOW", "AFTER"})};
  ControlArray<Picture> Picture2{0, 1, Elements<Picture>("Picture2", *this, Downward({900, 180, 5490, 540}, 720), {.back = kBlack, .border = true})};
  // Elements 1 to 6 stand in the upper row, 11 to 16 in the lower one.
  ControlArray<Label>   Label1  {{1, 2, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16}, Split(GearNames(Picture2[0], 1), 11, GearNames(Picture2[1], 11))};
  ControlArray<Button>  Command1{1, 6, Elements<Button> ("Command1", *this, Rightward({945, 1560, 840, 375}, 900, 1), {.caption = "Change"})};
  Button                Command2{"Command2", *this, { 900, 2205, 1260, 405}, {.caption = "OK"}};
  Button                Command3{"Command3", *this, {2310, 2205, 1260, 405}, {.caption = "Cancel"}};
  Button                Command4{"Command4", *this, {5130, 2205, 1260, 405}, {.caption = "Default"}};
  Dialog                CommonDialog1{"CommonDialog1", *this};
  // clang-format on

 private:
  /// Makes the names of the gears in a row, the 1st with the subscript `first`.
  static ControlArray<Label>::Maker GearNames(Picture& row, int first);
};

}  // namespace veldrin
