// UTF-8, the form of all texts in memory, character by character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldrin {

/// A character of a text, or a byte that is no part of one: then `bytes` is 1 and `valid` false.
struct CodePoint {
  char32_t code;
  std::size_t bytes;
  bool valid;
};

/// What begins at byte `at` of `text`, which must lie inside. A character counts as such only in its shortest
/// form, up to U+10FFFF and without the surrogates.
CodePoint CodePointAt(std::string_view text, std::size_t at);

/// Adds a character to a text.
void AppendCodePoint(std::string& text, char32_t code);

/// Whether `bytes` are well-formed UTF-8, the shortest form of each character.
bool IsValidUtf8(std::string_view bytes);

}  // namespace veldrin
