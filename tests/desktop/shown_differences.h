// What widgets show otherwise than the slots say, in lines that a failing test can print.
#pragma once

#include "desktop/windows/form_widget.h"
#include "window_script/shown_check.h"

#include <string>
#include <vector>

namespace veldrin {

inline std::vector<std::string> DifferenceLines(FormWidget& form, Stage& stage) {
  std::vector<std::string> lines;
  for (const Mismatch& mismatch : DifferencesIn(form, stage)) {
    lines.push_back(mismatch.name + ": " + mismatch.slot + " / " + mismatch.shown);
  }
  return lines;
}

}  // namespace veldrin
