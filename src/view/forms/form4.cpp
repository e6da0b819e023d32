#include "view/forms/form4.h"

namespace veldrin {

Form4::Form4(Desk& theDesk)
    : Window(
          theDesk, "Form4", {0, 0, 7140, 6540},
          {.caption = "Selected Mission Plan", .japanese = "選出されたミッションプラン", .back = kDarkBlue}) {
  for (int gear = 1; gear <= 6; ++gear) {
    Label17[gear].ForeColor.Design(DesignedGearColour(gear));
    Label24[gear].ForeColor.Design(DesignedGearColour(gear));
  }
  for (Label* head : {&Label11[0], &Label24[0], &Label12[0]}) {
    head->FontSize.Design(8);
    head->ForeColor.Design(kLightGrey);
    head->BackColor.Design(kDarkBlue);
  }
}

Form4::~Form4() = default;

}  // namespace veldrin
