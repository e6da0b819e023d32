// Texts in memory are UTF-8; positions and lengths count characters, from 1, as the program's rules do.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

inline constexpr std::string_view kCrLf = "\r\n";

/// How many characters `text` has. A byte that is no part of a character counts as one.
int Length(std::string_view text);

/// The first `count` characters; all of them when there are fewer.
std::string Left(std::string_view text, int count);

/// The last `count` characters; all of them when there are fewer.
std::string Right(std::string_view text, int count);

/// `count` characters from position `start` (1 is the first); fewer at the text's end.
std::string Mid(std::string_view text, int start, int count);

/// Everything from position `start` on.
std::string Mid(std::string_view text, int start);

/// The text's characters, each as a text of its own.
std::vector<std::string> Characters(std::string_view text);

/// Position of the first `part` in `text` at `start` or behind, 0 when there is none. The empty part is
/// found at `start`.
int Find(std::string_view text, std::string_view part, int start = 1);

/// Whether `part` occurs in `text`, exactly as written. The empty part always does.
bool Contains(std::string_view text, std::string_view part);

/// Letters in upper case: Latin with the accented ones of Western Europe, Greek, Cyrillic and the full-width
/// Latin letters.
std::string UpperCase(std::string_view text);

/// The same letters in lower case.
std::string LowerCase(std::string_view text);

/// Whether the two are the same but for the case of letters.
bool EqualsIgnoringCase(std::string_view a, std::string_view b);

/// Whether `part` occurs in `text`, the case of letters aside. The empty part always does.
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

/// `text` without blanks at its ends.
std::string Trim(std::string_view text);

/// Whether a character of `text` sorts after "9", as letters do. Signs, points, commas and blanks sort before
/// it, so this alone makes no number of a text.
bool HasLetter(std::string_view text);

/// Whether `name` matches `pattern`, in which "*" stands for any characters and "?" for one, case aside.
/// "*.*" matches every name, "*." the names without an extension.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace veldrin
