// One sequence: lines of the script language, done one after the other on a simulated machine, with the
// oracle's look behind each.
#pragma once

#include "tests/monkey/landmarks.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace veldrin::monkey {

/// Gives the next line of a sequence; nothing at its end.
using LineSource = std::function<std::optional<std::string>(ScriptWorld& world, const Moment& now)>;

struct Outcome {
  /// All that was done, a runnable script.
  std::vector<std::string> lines;
  Landmarks landmarks;
  /// The first thing that did not hold; the sequence stopped there.
  std::optional<Finding> finding;
  /// A line could not be done at all, as an action on a program that has ended.
  bool wrong = false;
};

Outcome Walk(const LineSource& source);

/// The lines as a source.
LineSource Lines(std::vector<std::string> lines);

}  // namespace veldrin::monkey
