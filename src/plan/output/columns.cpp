#include "plan/output/columns.h"

#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

namespace {

struct Run {
  const char* first;
  const char* last;
};

/// The wide characters. UTF-8 sorts as the characters do.
constexpr Run kWide[] = {
    {"\u1100", "\u115F"},          // Hangul letters
    {"\u2E80", "\u303E"},          // radicals, Japanese punctuation
    {"\u3041", "\u4DBF"},          // kana, squared and Chinese characters
    {"\u4E00", "\uA4CF"},          //
    {"\uAC00", "\uD7A3"},          // Hangul syllables
    {"\uF900", "\uFAFF"},          // compatibility forms
    {"\uFE30", "\uFE6F"},          //
    {"\uFF01", "\uFF60"},          // full-width forms
    {"\uFFE0", "\uFFE6"},          //
    {"\U0001F300", "\U0001FAFF"},  // pictures
    {"\U00020000", "\U0003FFFD"},  // rare Chinese characters
};

bool IsWide(const std::string& character) {
  return std::any_of(std::begin(kWide), std::end(kWide), [&](const Run& run) {
    return character.compare(run.first) >= 0 && character.compare(run.last) <= 0;
  });
}

std::string Blanks(int count) {
  return std::string(static_cast<std::size_t>(std::max(0, count)), ' ');
}

}  // namespace

int Columns(const std::string& text) {
  int columns = 0;
  for (const std::string& character : Characters(text)) columns += IsWide(character) ? 2 : 1;
  return columns;
}

std::string Behind(const std::string& text, int width) {
  return text + Blanks(width - Columns(text));
}

std::string Before(const std::string& text, int width) {
  return Blanks(width - Columns(text)) + text;
}

}  // namespace veldrin
