#include "view/forms/form1.h"

namespace veldrin {

Form1::Form1(Desk& theDesk) : Window(theDesk, "Form1", {0, 0, 7500, 1500}, {.back = kBlack}, false, false) {}

Form1::~Form1() = default;

}  // namespace veldrin
