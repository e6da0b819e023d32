// Whether a control is to be seen at all.
#pragma once

#include "view/control.h"

namespace veldrin {

/// Whether the control and everything around it inside its window is visible, enabled or not.
inline bool IsShown(const Control& control) {
  for (const Control* around = &control; around->parent != nullptr; around = around->parent) {
    if (!around->Visible) return false;
  }
  return true;
}

}  // namespace veldrin
