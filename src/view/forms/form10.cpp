#include "view/forms/form10.h"

namespace veldrin {

Form10::Form10(Desk& theDesk)
    : Window(theDesk, "Form10", {0, 0, 7170, 4830}, {.caption = "About Veldrin", .back = kPale}, false,
             false) {
  Line1.Visible.Design(false);
  Line2.Visible.Design(false);
}

Form10::~Form10() = default;

}  // namespace veldrin
