// The hidden canvas of the report: its own surface, and the picture that is handed over in the end. The
// window's scale is pixels, so the picture's place and size are given in them.
#pragma once

#include "view/control_array.h"

namespace veldrin {

struct Form6 : Window {
  explicit Form6(Desk& theDesk);
  ~Form6();

  Surface surface;
  // clang-format off
  Picture Picture1{"Picture1", *this, {0, 0, 640, 480}, {.back = kWhite}};
  // clang-format on
};

}  // namespace veldrin
