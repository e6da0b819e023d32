#include "view/forms/form9.h"

namespace veldrin {

Form9::Form9(Desk& theDesk) : Window(theDesk, "Form9", {0, 0, 6660, 3195}, {.caption = "Color Select"}) {
  for (int gear = 1; gear <= 6; ++gear) {
    Label1[gear].ForeColor.Design(DesignedGearColour(gear));
    Label1[gear + 10].ForeColor.Design(DesignedGearColour(gear));
  }
}

ControlArray<Label>::Maker Form9::GearNames(Picture& row, int first) {
  constexpr Look kName{.back = kBlack, .fontSize = 12, .fontBold = true, .align = Align::Centre};
  std::vector<const char*> captions(static_cast<std::size_t>(first));
  captions.insert(captions.end(), {"1ST", "2ND", "3RD", "4TH", "5TH", "6TH"});
  return Elements<Label>("Label1", row, Rightward({0, 90, 900, 330}, 900, first), kName, captions);
}

Form9::~Form9() = default;

}  // namespace veldrin
