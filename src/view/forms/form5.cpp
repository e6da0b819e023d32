#include "view/forms/form5.h"

namespace veldrin {

Form5::Form5(Desk& theDesk)
    : Window(theDesk, "Form5", {0, 0, 7690, 7300}, {.caption = "File Compare", .back = kDarkBlue}) {
  for (int gear = 1; gear <= 6; ++gear) {
    Label3[gear].ForeColor.Design(PaletteColour(gear + 8));
    Label9[gear].ForeColor.Design(PaletteColour(gear + 8));
  }
  for (Label* head : {&Label9[0], &Label9[7], &Label11[0], &Label12[0]}) {
    head->FontSize.Design(8);
    head->ForeColor.Design(kLightGrey);
    head->BackColor.Design(kDarkBlue);
  }
}

ControlArray<Label>::Maker Form5::Speeds() {
  const auto column = [](const char* name, Control& panel, const char* head, Align align) {
    const Look look{.fore = kLightGrey, .back = kBlack, .align = align};
    return Elements<Label>(name, panel, GearColumn(0, 555, 255), look, {head});
  };
  return [=, this](int i) {
    if (i == 0) return column("Label9", Picture2, "GEAR", Align::Left)(0);
    return column("Label9", Picture14, "SPEED", Align::Right)(i % 7);
  };
}

Form5::~Form5() = default;

}  // namespace veldrin
