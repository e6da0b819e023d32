// What a mistyped name may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

/// " - did you mean NAME?" with the nearest of the known names; empty when none is near.
std::string Suggestion(std::string_view wrong, const std::vector<std::string>& known);

}  // namespace veldrin
