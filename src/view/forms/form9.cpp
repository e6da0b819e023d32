#include "view/forms/form9.h"

namespace veldrin {

Form9::Form9(Desk& theDesk) : Window(theDesk, "Form9", {0, 0, 6660, 3195}, {.caption = "Color Select"}) {
  for (int gear = 1; gear <= 6; ++gear) {
    Label1[gear].ForeColor.Design(PaletteColour(gear + 8));
    Label1[gear + 10].ForeColor.Design(PaletteColour(gear + 8));
  }
}

ControlArray<Label>::Maker Form9::GearNames() {
  constexpr Look kName{.back = kBlack, .fontSize = 12, .fontBold = true, .align = Align::Centre};
  return [=, this](int i) {
    const auto names = Elements<Label>("Label1", Picture2[i / 10], Rightward({0, 90, 900, 330}, 900, 1),
                                       kName, {"", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"});
    return names(i % 10);
  };
}

Form9::~Form9() = default;

}  // namespace veldrin
