#include "view/forms/gear_columns.h"

namespace veldrin {

void DesignGearColours(std::initializer_list<ControlArray<Label>*> columns) {
  for (ControlArray<Label>* column : columns) {
    for (int gear = 1; gear <= 6; ++gear) (*column)[gear].ForeColor.Design(DesignedGearColour(gear));
  }
}

void DesignHeads(std::initializer_list<Label*> heads) {
  for (Label* head : heads) {
    head->FontSize.Design(8);
    head->ForeColor.Design(kLightGrey);
    head->BackColor.Design(kDarkBlue);
  }
}

}  // namespace veldrin
