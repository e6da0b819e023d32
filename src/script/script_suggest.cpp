#include "script/script_suggest.h"

#include "runtime/text.h"

#include <algorithm>
#include <limits>

namespace veldrin {

namespace {

/// How many characters have to be put in, left out, replaced or swapped with their neighbour.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::vector<std::size_t>> cost(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i) {
    for (std::size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        cost[i][j] = i + j;
        continue;
      }
      const std::size_t replaced = cost[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      cost[i][j] = std::min({replaced, cost[i - 1][j] + 1, cost[i][j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) cost[i][j] = std::min(cost[i][j], cost[i - 2][j - 2] + 1);
    }
  }
  return cost[a.size()][b.size()];
}

}  // namespace

std::string Suggestion(std::string_view wrong, const std::vector<std::string>& known) {
  const std::string lower = LowerCase(wrong);
  const std::string* nearest = nullptr;
  std::size_t least = std::numeric_limits<std::size_t>::max();
  for (const std::string& name : known) {
    const std::size_t distance = Distance(lower, LowerCase(name));
    if (distance < least) {
      least = distance;
      nearest = &name;
    }
  }
  const std::size_t near = std::max<std::size_t>(2, wrong.size() / 3);
  return nearest != nullptr && least <= near ? " - did you mean " + *nearest + "?" : "";
}

}  // namespace veldrin
