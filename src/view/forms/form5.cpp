#include "view/forms/form5.h"

#include "view/forms/gear_columns.h"

namespace veldrin {

Form5::Form5(Desk& theDesk)
    : Window(theDesk, "Form5", {0, 0, 7690, 7300},
             {.caption = "File Compare", .japanese = "ファイル比較", .back = kDarkBlue}) {
  DesignGearColours({&Label3, &Label9});
  DesignHeads({&Label9[0], &Label9[7], &Label11[0], &Label12[0]});
}

Form5::~Form5() = default;

}  // namespace veldrin
