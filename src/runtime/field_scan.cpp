#include "runtime/field_scan.h"

#include <algorithm>

namespace veldrin {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kDelimiters = ",\r\n";

/// The first place at `at` or behind whose character is one of `characters`; the text's end when there is
/// none.
std::size_t FindAny(std::string_view text, std::string_view characters, std::size_t at) {
  return std::min(text.find_first_of(characters, at), text.size());
}

bool IsLineEnd(std::string_view text, std::size_t at) {
  return at < text.size() && kLineEnds.find(text[at]) != std::string_view::npos;
}

/// Behind the line end at `at`; `at` itself where there is none.
std::size_t BehindLineEnd(std::string_view text, std::size_t at) {
  if (!IsLineEnd(text, at)) return at;
  const bool two = text.substr(at).starts_with("\r\n");
  return at + (two ? 2 : 1);
}

std::string_view WithoutBlanksBehind(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

}  // namespace

FieldScan ScanField(std::string_view text, std::size_t at) {
  FieldScan field;
  field.begin = std::min(text.find_first_not_of(kBlanks, at), text.size());
  std::size_t end = field.begin;
  if (end < text.size() && text[end] == '"') {
    const std::size_t close = text.find('"', field.begin + 1);
    field.unclosed = close == std::string_view::npos;
    const std::size_t behind = field.unclosed ? text.size() : close + 1;
    const std::size_t length = (field.unclosed ? behind : close) - field.begin - 1;
    field.text = text.substr(field.begin + 1, length);
    end = FindAny(text, kDelimiters, behind);
    field.dropsText = !WithoutBlanksBehind(text.substr(behind, end - behind)).empty();
  } else {
    end = FindAny(text, kDelimiters, field.begin);
    field.text = WithoutBlanksBehind(text.substr(field.begin, end - field.begin));
  }
  field.endsLine = end == text.size() || IsLineEnd(text, end);
  field.next = field.endsLine ? BehindLineEnd(text, end) : end + 1;
  return field;
}

LineScan ScanLine(std::string_view text, std::size_t at) {
  const std::size_t end = FindAny(text, kLineEnds, at);
  return {text.substr(at, end - at), BehindLineEnd(text, end)};
}

int CountLineEnds(std::string_view text) {
  int count = 0;
  for (std::size_t at = FindAny(text, kLineEnds, 0); at < text.size(); at = FindAny(text, kLineEnds, at)) {
    at = BehindLineEnd(text, at);
    ++count;
  }
  return count;
}

}  // namespace veldrin
