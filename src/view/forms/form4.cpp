#include "view/forms/form4.h"

#include "view/forms/gear_columns.h"

namespace veldrin {

Form4::Form4(Desk& theDesk)
    : Window(
          theDesk, "Form4", {0, 0, 7140, 6540},
          {.caption = "Selected Mission Plan", .japanese = "選出されたミッションプラン", .back = kDarkBlue}) {
  DesignGearColours({&Label17, &Label24});
  DesignHeads({&Label11[0], &Label24[0], &Label12[0]});
}

Form4::~Form4() = default;

}  // namespace veldrin
