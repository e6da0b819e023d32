#include "view/forms/form5.h"

namespace veldrin {

Form5::Form5(Desk& theDesk)
    : Window(theDesk, "Form5", {0, 0, 7690, 7300},
             {.caption = "File Compare", .japanese = "ファイル比較", .back = kDarkBlue}) {
  for (int gear = 1; gear <= 6; ++gear) {
    Label3[gear].ForeColor.Design(DesignedGearColour(gear));
    Label9[gear].ForeColor.Design(DesignedGearColour(gear));
  }
  for (Label* head : {&Label9[0], &Label9[7], &Label11[0], &Label12[0]}) {
    head->FontSize.Design(8);
    head->ForeColor.Design(kLightGrey);
    head->BackColor.Design(kDarkBlue);
  }
}

Form5::~Form5() = default;

}  // namespace veldrin
