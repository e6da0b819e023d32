#include "simulated/simulated_path.h"

#include "runtime/fault.h"

namespace veldrin {

namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr std::string_view kBadInPattern = "<>|\":";
constexpr std::string_view kWildcards = "*?";

bool IsSeparator(char c) {
  return kSeparators.find(c) != std::string_view::npos;
}

char UpperLetter(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

void CheckCharacters(std::string_view part, bool wildcardsAllowed) {
  for (const char c : part) {
    const bool control = static_cast<unsigned char>(c) < 0x20;
    const bool wildcard = kWildcards.find(c) != std::string_view::npos;
    if (control || kBadInPattern.find(c) != std::string_view::npos || (wildcard && !wildcardsAllowed)) {
      Raise(kFaultBadFileName);
    }
  }
}

/// Adds a part as the system keeps it: "." says nothing, blanks and dots at the end are lost.
void AddPart(SimulatedPath& path, std::string_view part) {
  CheckCharacters(part, false);
  if (part.empty() || part == ".") return;
  if (part != "..") {
    const auto last = part.find_last_not_of(" .");
    if (last == std::string_view::npos) Raise(kFaultBadFileName);
    part = part.substr(0, last + 1);
  }
  path.parts.emplace_back(part);
}

}  // namespace

bool HasDrive(std::string_view path) {
  if (path.size() < 2 || path[1] != ':') return false;
  const char letter = UpperLetter(path[0]);
  return letter >= 'A' && letter <= 'Z';
}

bool HasWildcard(std::string_view name) {
  return name.find_first_of(kWildcards) != std::string_view::npos;
}

SimulatedPath CutPath(std::string_view text) {
  SimulatedPath path;
  if (text.empty()) Raise(kFaultBadFileName);
  if (text.size() >= 2 && IsSeparator(text[0]) && IsSeparator(text[1])) Raise(kFaultBadFileName);
  if (HasDrive(text)) {
    path.drive = UpperLetter(text[0]);
    text.remove_prefix(2);
  }
  path.rooted = !text.empty() && IsSeparator(text[0]);
  while (!text.empty()) {
    const std::string_view part = text.substr(0, text.find_first_of(kSeparators));
    AddPart(path, part);
    text.remove_prefix(part.size() < text.size() ? part.size() + 1 : part.size());
  }
  return path;
}

SimulatedPattern CutPattern(std::string_view pattern) {
  const auto separator = pattern.find_last_of(kSeparators);
  std::size_t at = 0;
  if (separator != std::string_view::npos) {
    at = separator + 1;
  } else if (HasDrive(pattern)) {
    at = 2;
  }
  CheckCharacters(pattern.substr(at), true);
  return {std::string(pattern.substr(0, at)), std::string(pattern.substr(at))};
}

}  // namespace veldrin
