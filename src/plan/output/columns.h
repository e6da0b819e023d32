// Texts in columns of a console.
#pragma once

#include <string>

namespace veldrin {

/// Columns that a text takes: two for each character of East Asian scripts and their full-width forms, one
/// for every other, half-width katakana among them.
int Columns(const std::string& text);

/// `text` with blanks behind it, or before it, up to `width` columns; as it is where it is wider.
std::string Behind(const std::string& text, int width);
std::string Before(const std::string& text, int width);

}  // namespace veldrin
