#include "view/form9.h"

namespace veldrin {

Form9::Form9(Desk& theDesk) : Window(theDesk, "Form9", {0, 0, 6660, 3195}, {.caption = "Color Select"}) {
  for (int gear = 1; gear <= 6; ++gear) {
    Label1[gear].ForeColor.Design(PaletteColour(gear + 8));
    Label1[gear + 10].ForeColor.Design(PaletteColour(gear + 8));
  }
}

Form9::~Form9() = default;

}  // namespace veldrin
