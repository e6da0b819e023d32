#include "view/forms/form3.h"

namespace veldrin {

Form3::Form3(Desk& theDesk) : Window(theDesk, "Form3", {0, 0, 8400, 6075}, {.caption = "File Select"}) {}

Form3::~Form3() = default;

}  // namespace veldrin
