// The sources of the user's guide, as the tests read them.
#pragma once

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace veldrin {

inline std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A text without its blanks, the wide ones included: a caption is laid out by them, and they say nothing.
inline std::string WithoutBlanks(std::string text) {
  for (const std::string blank : {" ", "\t", "\r", "\n", "\u3000"}) {
    for (std::size_t at = text.find(blank); at != std::string::npos; at = text.find(blank, at)) {
      text.erase(at, blank.size());
    }
  }
  return text;
}

/// What stands between two marks, wherever both stand in one line.
inline std::vector<std::string> Between(const std::string& text, const std::string& open,
                                        const std::string& close) {
  std::vector<std::string> found;
  for (std::size_t at = text.find(open); at != std::string::npos; at = text.find(open, at)) {
    const std::size_t begin = at + open.size();
    const std::size_t end = text.find(close, begin);
    if (end == std::string::npos) break;
    const std::string inside = text.substr(begin, end - begin);
    const bool oneLine = inside.find('\n') == std::string::npos;
    if (oneLine) found.push_back(inside);
    at = oneLine ? end + close.size() : begin;
  }
  return found;
}

/// The guide in one language, "en" or "ja".
struct GuideText {
  explicit GuideText(const std::string& language)
      : text(FileText(std::string(VELDRIN_ROOT) + "/docs/guide/" + language + ".md")) {}

  /// Words on the screen, without blanks.
  std::set<std::string> Words() const {
    std::set<std::string> words;
    for (const std::string& word : Between(text, "**", "**")) words.insert(WithoutBlanks(word));
    return words;
  }
  /// Entries of menus by their whole paths, and keys.
  std::set<std::string> Menus() const { return SetOf(Between(text, "{{", "}}")); }
  std::set<std::string> Keys() const { return SetOf(Between(text, "[[", "]]")); }
  /// The names of its headings.
  std::set<std::string> Sections() const { return SetOf(Between(text, " {#", "}\n")); }

  const std::string text;

 private:
  static std::set<std::string> SetOf(const std::vector<std::string>& all) { return {all.begin(), all.end()}; }
};

}  // namespace veldrin
