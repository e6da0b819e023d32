#include "runtime/text.h"

#include "runtime/utf8.h"

#include <algorithm>

namespace veldrin {

namespace {

/// Byte offset of character `position` (from 1), the text's size when it has fewer characters.
std::size_t Offset(std::string_view text, int position) {
  std::size_t at = 0;
  for (int k = 1; k < position && at < text.size(); ++k) at += CodePointAt(text, at).bytes;
  return at;
}

/// A run of letters whose other case lies a fixed distance away.
struct CaseRun {
  char32_t lowerFirst;
  char32_t lowerLast;
  char32_t distance;
};

constexpr CaseRun kCaseRuns[] = {
    {U'a', U'z', 0x20},     {0x00E0, 0x00F6, 0x20}, {0x00F8, 0x00FE, 0x20}, {0x03B1, 0x03C1, 0x20},
    {0x03C3, 0x03CB, 0x20}, {0x0430, 0x044F, 0x20}, {0x0450, 0x045F, 0x50}, {0xFF41, 0xFF5A, 0x20},
};

char32_t Upper(char32_t code) {
  for (const CaseRun& run : kCaseRuns) {
    if (code >= run.lowerFirst && code <= run.lowerLast) return code - run.distance;
  }
  return code;
}

char32_t Lower(char32_t code) {
  for (const CaseRun& run : kCaseRuns) {
    if (code + run.distance >= run.lowerFirst && code + run.distance <= run.lowerLast) {
      return code + run.distance;
    }
  }
  return code;
}

std::string MapCase(std::string_view text, char32_t (*map)(char32_t)) {
  std::string mapped;
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint point = CodePointAt(text, at);
    if (point.valid) {
      AppendCodePoint(mapped, map(point.code));
    } else {
      mapped += text[at];
    }
    at += point.bytes;
  }
  return mapped;
}

bool MatchesLower(std::string_view name, std::string_view pattern) {
  while (!pattern.empty()) {
    if (pattern.front() == '*') {
      pattern.remove_prefix(1);
      for (std::size_t skip = 0; skip <= name.size(); ++skip) {
        if (MatchesLower(name.substr(skip), pattern)) return true;
      }
      return false;
    }
    if (name.empty()) return false;
    const std::size_t bytes = CodePointAt(name, 0).bytes;
    if (pattern.front() == '?') {
      pattern.remove_prefix(1);
    } else {
      if (pattern.substr(0, bytes) != name.substr(0, bytes)) return false;
      pattern.remove_prefix(bytes);
    }
    name.remove_prefix(bytes);
  }
  return name.empty();
}

}  // namespace

int Length(std::string_view text) {
  int length = 0;
  for (std::size_t at = 0; at < text.size(); at += CodePointAt(text, at).bytes) ++length;
  return length;
}

std::string Left(std::string_view text, int count) {
  return Mid(text, 1, count);
}

std::string Right(std::string_view text, int count) {
  return Mid(text, std::max(1, Length(text) - count + 1));
}

std::string Mid(std::string_view text, int start, int count) {
  const std::string_view rest = text.substr(Offset(text, start));
  return std::string(rest.substr(0, Offset(rest, std::max(0, count) + 1)));
}

std::string Mid(std::string_view text, int start) {
  return std::string(text.substr(Offset(text, start)));
}

std::vector<std::string> Characters(std::string_view text) {
  std::vector<std::string> characters;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t bytes = CodePointAt(text, at).bytes;
    characters.emplace_back(text.substr(at, bytes));
    at += bytes;
  }
  return characters;
}

int Find(std::string_view text, std::string_view part, int start) {
  const std::size_t at = text.find(part, Offset(text, start));
  return at == std::string_view::npos ? 0 : Length(text.substr(0, at)) + 1;
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::string UpperCase(std::string_view text) {
  return MapCase(text, Upper);
}

std::string LowerCase(std::string_view text) {
  return MapCase(text, Lower);
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
  return LowerCase(a) == LowerCase(b);
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return Contains(LowerCase(text), LowerCase(part));
}

std::string Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return std::string(text);
}

bool HasLetter(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](unsigned char c) { return c > '9'; });
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  const std::string lowerName = LowerCase(name);
  const std::string lowerPattern = LowerCase(pattern);
  if (lowerPattern == "*.*") return true;
  // "*." asks for names without an extension, which carry no period to match.
  if (lowerPattern.ends_with("*.")) {
    return MatchesLower(lowerName, lowerPattern.substr(0, lowerPattern.size() - 1)) &&
           lowerName.find('.') == std::string::npos;
  }
  return MatchesLower(lowerName, lowerPattern);
}

}  // namespace veldrin
