#include "script/script_values.h"

#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "script/script_error.h"

#include <charconv>
#include <limits>

namespace veldrin {

std::int64_t WholeNumber(const std::string& word, std::int64_t least, std::int64_t most) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word.empty() || error != std::errc() || end != word.data() + word.size()) {
    throw ScriptError{"\"" + word + "\" is no whole number"};
  }
  if (number < least || number > most) {
    throw ScriptError{word + " is not in " + std::to_string(least) + " to " + std::to_string(most)};
  }
  return number;
}

int IntNumber(const std::string& word) {
  return static_cast<int>(
      WholeNumber(word, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

double Number(const std::string& word) {
  double number = 0;
  if (Guarded([&] { number = ParseNumber(word); }) != 0) throw ScriptError{"\"" + word + "\" is no number"};
  return number;
}

float SingleNumber(const std::string& word) {
  const double number = Number(word);
  float single = 0;
  if (Guarded([&] { single = ToSingle(number); }) != 0) throw ScriptError{word + " is too large"};
  return single;
}

bool TrueOrFalse(const std::string& word) {
  if (EqualsIgnoringCase(word, "True")) return true;
  if (EqualsIgnoringCase(word, "False")) return false;
  throw ScriptError{"\"" + word + "\" is neither True nor False"};
}

Colour ColourOf(const std::string& word) {
  int parts[3] = {};
  std::size_t begin = 0;
  for (int i = 0; i < 3; ++i) {
    const std::size_t end = i < 2 ? word.find(',', begin) : word.size();
    if (end == std::string::npos) throw ScriptError{"\"" + word + "\" is no colour R,G,B"};
    parts[i] = static_cast<int>(WholeNumber(word.substr(begin, end - begin), 0, 255));
    begin = end + 1;
  }
  return Rgb(parts[0], parts[1], parts[2]);
}

}  // namespace veldrin
