// A progress meter on a surface whose lines can be asked for.
#pragma once

#include "dialogs/progress_meter.h"
#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {

using Lines = std::vector<std::string>;

/// A meter on a surface of 2000 by 1000 twips. A character of size 9 is 90 twips wide, a line 216 high.
struct Meter : testing::Test {
  SimulatedMachine simulated;
  Surface surface{simulated.metrics};
  clsProgressBar meter;

  Meter() {
    surface.SetSize(2000, 1000);
    surface.font = {"Arial", 9, false, false};
    meter.SetPicture(surface);
  }

  /// What was drawn since the last call.
  Lines Drawn() {
    Lines lines;
    for (const Primitive& primitive : surface.Drawing()) lines.push_back(Describe(primitive));
    surface.Clear();
    return lines;
  }
};

inline std::string Text(const std::string& place, const std::string& text,
                        const std::string& colour = "0,0,128") {
  return "text " + place + " \"" + text + "\" " + colour + " font=\"Arial\" size=9 bold=False italic=False";
}

}  // namespace veldrin
