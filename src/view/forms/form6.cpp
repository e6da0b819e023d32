#include "view/forms/form6.h"

namespace veldrin {

Form6::Form6(Desk& theDesk)
    : Window(theDesk, "Form6", {0, 0, 9720, 7400}, {.back = kWhite}), surface(theDesk.machine.metrics) {
  surface.SetSize(Width, Height);
  surface.font = {"ＭＳ ゴシック", 9, false, false};
}

Form6::~Form6() = default;

}  // namespace veldrin
