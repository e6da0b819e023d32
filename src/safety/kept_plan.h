// A kept plan as a text: the plan's state with when it was kept and where the window stood.
//
//   veldrin kept plan 1
//   saved=2026-11-22T21:04:05
//   ...
//   check=8f3a...
//
// One value a line, `name=text`; in a text stand \\ for a backslash, \r and \n for line ends. The last line
// is a sum over all lines before it, so that a text which is not whole is known for that. Numbers have a
// point for their decimals whatever the system's separator.
#pragma once

#include "safety/plan_state.h"

#include <optional>
#include <string>
#include <string_view>

namespace veldrin {

/// Where the main window stood, in twips.
struct WindowPlace {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
  std::int16_t state = 0;  // 0 normal, 1 minimised, 2 maximised

  friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

struct KeptPlan {
  std::string when;      // local time, as 2026-11-22T21:04:05
  std::string planFile;  // name of the plan file beside it
  WindowPlace place;
  PlanState plan;

  friend bool operator==(const KeptPlan&, const KeptPlan&) = default;
};

std::string KeptText(const KeptPlan& kept);

/// Lines with the sum that belongs below them.
std::string WithKeptSum(const std::string& lines);

/// Why a text is no kept plan.
enum class KeptFlaw { None, Damaged, Newer };

struct ReadKept {
  KeptFlaw flaw = KeptFlaw::None;
  KeptPlan kept;
};

/// Reads the text back; a plan with a flaw is empty. Raises nothing.
ReadKept ParseKept(std::string_view text);

}  // namespace veldrin
