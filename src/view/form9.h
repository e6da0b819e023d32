// The colours of the gears: a row of those in use, a row of those picked, a button for each gear.
#pragma once

#include "view/control_array.h"

namespace veldrin {

struct Form9 : Window {
  explicit Form9(Desk& theDesk);
  ~Form9();

  // clang-format off
  ControlArray<Label>   Label2  {0, 1, Elements<Label>  ("Label2",   *this, [](int i) { return Place{150, 330 + 720.0F * static_cast<float>(i), 720, 255}; }, {}, {"NOW", "AFTER"})};
  ControlArray<Picture> Picture2{0, 1, Elements<Picture>("Picture2", *this, [](int i) { return Place{900, 180 + 720.0F * static_cast<float>(i), 5490, 540}; }, {.back = kBlack, .border = true})};
  // Elements 1 to 6 stand in the upper row, 11 to 16 in the lower one.
  ControlArray<Label>   Label1  {{1, 2, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16}, [this](int i) { return Elements<Label>("Label1", Picture2[i / 10], [](int k) { return Place{900.0F * static_cast<float>(k % 10 - 1), 90, 900, 330}; }, {.back = kBlack, .fontSize = 12, .fontBold = true, .align = Align::Centre}, {"", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH", "", "", "", "", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"})(i); }};
  ControlArray<Button>  Command1{1, 6, Elements<Button> ("Command1", *this, [](int i) { return Place{945 + 900.0F * static_cast<float>(i - 1), 1560, 840, 375}; }, {.caption = "Change"})};
  Button                Command2{"Command2", *this, { 900, 2205, 1260, 405}, {.caption = "OK"}};
  Button                Command3{"Command3", *this, {2310, 2205, 1260, 405}, {.caption = "Cancel"}};
  Button                Command4{"Command4", *this, {5130, 2205, 1260, 405}, {.caption = "Default"}};
  Dialog                CommonDialog1{"CommonDialog1", *this};
  // clang-format on
};

}  // namespace veldrin
