#include "plan/check/key_check.h"

#include "model/limits.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <string>

namespace veldrin {

namespace {

/// The key of this very name; nothing when there is none.
const Condition* KeyNamed(const std::string& name) {
  const auto* const found = std::find_if(std::begin(kConditions), std::end(kConditions),
                                         [&](const Condition& condition) { return name == condition.key; });
  return found == std::end(kConditions) ? nullptr : found;
}

/// A line that names a key but sets nothing.
void CheckRemark(SectionReader& list, int line, const std::string& text) {
  const std::string first = UpperCase(Trim(text).substr(0, Trim(text).find_first_of(" \t:")));
  if (KeyNamed(first) == nullptr) return;
  list.remarks.Warn(line, Quoted(text) + " has no \"=\" and is ignored");
}

void CheckUnknownKey(SectionReader& list, int line, const std::string& key) {
  const Condition* const meant = KeyNamed(UpperCase(Trim(key)));
  std::string text = "unknown key " + Quoted(key);
  if (meant != nullptr) text += std::string("; ") + meant->key + " has capitals and no blank beside it";
  list.remarks.Warn(line, text);
}

void CheckValue(SectionReader& list, int line, const Condition& known, const std::string& value) {
  const std::string key = known.key;
  const std::string shown = Trim(value);
  double number = 0;
  if (Guarded([&] { number = ParseNumber(value); }) != 0) {
    list.remarks.Warn(line, key + ": " + Quoted(shown) + " is no number");
    return;
  }
  if (!known.limits.Holds(number)) {
    list.remarks.Warn(line, key + ": " + shown + " is out of range, " + std::to_string(known.limits.lowest) +
                                " to " + std::to_string(known.limits.highest));
    return;
  }
  if (known.whole && number != RoundHalfToEven(number)) {
    list.remarks.Warn(line, key + ": " + shown + " is not a whole number; it is read as " +
                                ShortestText(RoundHalfToEven(number)));
  }
  const auto [before, isFirst] = list.places.keys.emplace(key, line);
  if (isFirst) return;
  list.remarks.Warn(
      line, key + " stands in line " + std::to_string(before->second) + " already; the later line holds");
  before->second = line;
}

}  // namespace

void CheckKeyLines(SectionReader& list) {
  while (!list.scanner.AtEnd()) {
    const int line = list.scanner.Line();
    const std::string text = list.scanner.RestOfLine();
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
      CheckRemark(list, line, text);
      continue;
    }
    const std::string key = text.substr(0, equals);
    const Condition* const known = KeyNamed(key);
    if (known == nullptr) {
      CheckUnknownKey(list, line, key);
    } else {
      CheckValue(list, line, *known, text.substr(equals + 1));
    }
  }
}

}  // namespace veldrin
