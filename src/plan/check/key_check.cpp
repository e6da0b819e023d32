#include "plan/check/key_check.h"

#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <string>

namespace veldrin {

namespace {

/// A key of the key lines, with the range of its values.
struct KeyRange {
  const char* key;
  double lowest;
  double highest;
  bool whole;
};

constexpr KeyRange kKeys[] = {
    {"TYRE_L", 1, 3, false},       {"CHECK_NE", 5000, 24000, true}, {"SHIFT_NE", 5000, 24000, true},
    {"MAX_SPEED", 100, 340, true}, {"MAX_NE", 5000, 24000, true},
};

/// The key of this very name; nothing when there is none.
const KeyRange* KeyNamed(const std::string& name) {
  const auto* const found =
      std::find_if(std::begin(kKeys), std::end(kKeys), [&](const KeyRange& k) { return name == k.key; });
  return found == std::end(kKeys) ? nullptr : found;
}

/// A line that names a key but sets nothing.
void CheckRemark(SectionReader& list, int line, const std::string& text) {
  const std::string first = UpperCase(Trim(text).substr(0, Trim(text).find_first_of(" \t:")));
  if (KeyNamed(first) == nullptr) return;
  list.remarks.Warn(line, Quoted(text) + " has no \"=\" and is ignored");
}

void CheckUnknownKey(SectionReader& list, int line, const std::string& key) {
  const KeyRange* const meant = KeyNamed(UpperCase(Trim(key)));
  std::string text = "unknown key " + Quoted(key);
  if (meant != nullptr) text += std::string("; ") + meant->key + " has capitals and no blank beside it";
  list.remarks.Warn(line, text);
}

void CheckValue(SectionReader& list, int line, const KeyRange& known, const std::string& value) {
  const std::string key = known.key;
  const std::string shown = Trim(value);
  double number = 0;
  if (Guarded([&] { number = ParseNumber(value); }) != 0) {
    list.remarks.Warn(line, key + ": " + Quoted(shown) + " is no number");
    return;
  }
  if (number < known.lowest || number > known.highest) {
    list.remarks.Warn(line, key + ": " + shown + " is out of range, " + ShortestText(known.lowest) + " to " +
                                ShortestText(known.highest));
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
    const KeyRange* const known = KeyNamed(key);
    if (known == nullptr) {
      CheckUnknownKey(list, line, key);
    } else {
      CheckValue(list, line, *known, text.substr(equals + 1));
    }
  }
}

}  // namespace veldrin
