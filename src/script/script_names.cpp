#include "script/script_names.h"

#include "script/script_error.h"

#include <charconv>
#include <utility>

namespace veldrin {

namespace {

/// More elements than any table has.
constexpr int kRangeLimit = 10000;

class NameParser {
 public:
  explicit NameParser(std::string_view text) : text_(text) {}

  std::vector<ScriptName> Names() {
    do {
      ReadPart();
    } while (Take('.'));
    if (at_ != text_.size()) Fail();
    return std::move(names_);
  }

 private:
  [[noreturn]] void Fail() const { throw ScriptError{"\"" + std::string(text_) + "\" is no name"}; }

  bool Take(char c) {
    if (at_ >= text_.size() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  void ReadPart() {
    const std::size_t end = std::min(text_.find_first_of(".(),", at_), text_.size());
    if (end == at_) Fail();
    for (ScriptName& name : names_) name.push_back({std::string(text_.substr(at_, end - at_)), {}});
    at_ = end;
    if (!Take('(')) return;
    do {
      ReadIndex();
    } while (Take(','));
    if (!Take(')')) Fail();
  }

  /// One subscript or a range of them, for the last part of every name so far.
  void ReadIndex() {
    const int first = ReadNumber();
    int last = first;
    if (text_.substr(at_, 2) == "..") {
      at_ += 2;
      last = ReadNumber();
    }
    const int step = first <= last ? 1 : -1;
    const auto count = static_cast<std::size_t>((last - first) * step) + 1;
    if (count * names_.size() > kRangeLimit) throw ScriptError{std::string(text_) + " stands for too many"};
    std::vector<ScriptName> all;
    for (const ScriptName& name : names_) {
      for (int index = first; index != last + step; index += step) {
        all.push_back(name);
        all.back().back().indices.push_back(index);
      }
    }
    names_ = std::move(all);
  }

  int ReadNumber() {
    int number = 0;
    const char* begin = text_.data() + at_;
    const auto [end, error] = std::from_chars(begin, text_.data() + text_.size(), number);
    const bool sane = number > -1000000 && number < 1000000;
    if (error != std::errc() || !sane) Fail();
    at_ += static_cast<std::size_t>(end - begin);
    return number;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<ScriptName> names_{{}};
};

}  // namespace

std::vector<ScriptName> ParseNames(std::string_view text) {
  return NameParser(text).Names();
}

ScriptName ParseName(std::string_view text) {
  std::vector<ScriptName> names = ParseNames(text);
  if (names.size() != 1) throw ScriptError{"a range cannot stand here: " + std::string(text)};
  return names.front();
}

std::string NameText(const NamePart& part) {
  std::string text = part.name;
  for (std::size_t i = 0; i < part.indices.size(); ++i) {
    text += (i == 0 ? "(" : ",") + std::to_string(part.indices[i]);
  }
  return part.indices.empty() ? text : text + ")";
}

std::string NameText(const ScriptName& name) {
  std::string text;
  for (const NamePart& part : name) text += (text.empty() ? "" : ".") + NameText(part);
  return text;
}

}  // namespace veldrin
