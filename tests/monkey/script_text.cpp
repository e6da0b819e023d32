#include "tests/monkey/script_text.h"

#include "script/script_error.h"
#include "script/script_names.h"
#include "simulated/printed_values.h"

namespace veldrin::monkey {

namespace {

/// The constant for the control characters at the beginning of `text`; null for others.
const char* Constant(std::string_view text) {
  if (text.starts_with("\r\n")) return "CRLF";
  if (text.starts_with('\r')) return "CR";
  if (text.starts_with('\n')) return "LF";
  if (text.starts_with('\t')) return "TAB";
  return nullptr;
}

void Join(std::string& word, const std::string& piece) {
  word += (word.empty() ? "" : " & ") + piece;
}

}  // namespace

std::string AsWord(std::string_view text) {
  std::string word;
  while (!text.empty()) {
    if (const char* const constant = Constant(text)) {
      Join(word, constant);
      text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    } else {
      const std::string_view piece = text.substr(0, text.find_first_of("\r\n\t"));
      Join(word, Quoted(piece));
      text.remove_prefix(piece.size());
    }
  }
  return word.empty() ? "\"\"" : word;
}

std::string Line(std::initializer_list<std::string> words) {
  std::string line;
  for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
  return line;
}

Deed::Deed(const std::string& theLine) : line(theLine), words(SplitWords(theLine)) {
  command = words[0].text;
  if (words.size() < 2 || !words[1].plain || !words[1].text.starts_with("Form")) return;
  const ScriptName name = ParseName(words[1].text);
  window = name[0].name;
  if (name.size() < 2) return;
  control = name[1].name;
  if (!name[1].indices.empty()) index = name[1].indices[0];
}

}  // namespace veldrin::monkey
