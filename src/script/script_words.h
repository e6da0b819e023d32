// A line of a script, cut into words.
//
// Words are parted by blanks. A word is one piece, or several joined by "&": a text in double quotes, in
// which
// "" is one quote; one of the constants CR, LF, CRLF and TAB; or anything else without blanks. "&" joins
// where a word could begin and behind a quoted text or a constant; inside of other words it joins in front of
// those two and else is a character like any other. "#" begins a comment where a word could begin.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

struct Word {
  /// What it means.
  std::string text;
  /// As it is written.
  std::string source;
  /// One piece without quotes: it may be a word of the language, such as "has".
  bool plain = false;
};

/// The words of a line. Throws ScriptError for a quoted text without its end, one with something glued to it
/// and an "&" that lacks a side.
std::vector<Word> SplitWords(std::string_view line);

}  // namespace veldrin
