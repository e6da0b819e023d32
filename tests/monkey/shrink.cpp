#include "tests/monkey/shrink.h"

#include <algorithm>

namespace veldrin::monkey {

namespace {

using Script = std::vector<std::string>;

Script Without(const Script& lines, std::size_t from, std::size_t count) {
  Script rest = lines;
  const auto first = rest.begin() + static_cast<std::ptrdiff_t>(from);
  rest.erase(first, first + static_cast<std::ptrdiff_t>(std::min(count, lines.size() - from)));
  return rest;
}

bool SameFinding(const Outcome& outcome, const Outcome& failed) {
  return !outcome.wrong && outcome.finding && outcome.finding->rule == failed.finding->rule;
}

}  // namespace

Outcome Shrink(const Outcome& failed) {
  if (!failed.finding || failed.wrong) return failed;
  Outcome shortest = failed;
  for (std::size_t count = std::max<std::size_t>(shortest.lines.size() / 2, 1); count > 0;) {
    bool shorter = false;
    for (std::size_t from = 0; from < shortest.lines.size();) {
      const Outcome outcome = Walk(Lines(Without(shortest.lines, from, count)));
      if (SameFinding(outcome, failed)) {
        shortest = outcome;
        shorter = true;
      } else {
        from += count;
      }
    }
    if (!shorter) count /= 2;
  }
  return shortest;
}

}  // namespace veldrin::monkey
