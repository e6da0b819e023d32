#include "script/script_words.h"

#include "script/script_error.h"

namespace veldrin {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

/// The text of a constant; null for other pieces.
const char* ConstantText(std::string_view piece) {
  if (piece == "CR") return "\r";
  if (piece == "LF") return "\n";
  if (piece == "CRLF") return "\r\n";
  if (piece == "TAB") return "\t";
  return nullptr;
}

class Splitter {
 public:
  explicit Splitter(std::string_view line) : line_(line) {}

  std::vector<Word> Words() {
    std::vector<Word> words;
    for (SkipBlanks(); !AtEnd(); SkipBlanks()) words.push_back(NextWord());
    return words;
  }

 private:
  /// The end of the line, or of what counts in it: a comment may begin where this is asked.
  bool AtEnd() const { return at_ >= line_.size() || line_[at_] == '#'; }

  void SkipBlanks() {
    while (at_ < line_.size() && IsBlank(line_[at_])) ++at_;
  }

  Word NextWord() {
    const std::size_t begin = at_;
    if (line_[at_] == '&') throw ScriptError{"nothing stands in front of &"};
    Word word;
    word.plain = line_[at_] != '"';
    word.text = NextPiece();
    std::size_t end = at_;
    for (SkipBlanks(); at_ < line_.size() && line_[at_] == '&'; SkipBlanks()) {
      ++at_;
      SkipBlanks();
      if (AtEnd() || line_[at_] == '&') throw ScriptError{"nothing stands behind &"};
      word.plain = false;
      word.text += NextPiece();
      end = at_;
    }
    word.source = line_.substr(begin, end - begin);
    return word;
  }

  std::string NextPiece() {
    if (line_[at_] == '"') return QuotedPiece();
    const std::size_t begin = at_;
    while (at_ < line_.size() && !IsBlank(line_[at_]) && !JoinsHere(begin)) ++at_;
    const std::string_view piece = line_.substr(begin, at_ - begin);
    const char* constant = ConstantText(piece);
    return constant != nullptr ? constant : std::string(piece);
  }

  std::string QuotedPiece() {
    std::string text;
    for (++at_; at_ < line_.size(); ++at_) {
      if (line_[at_] != '"') {
        text += line_[at_];
      } else if (at_ + 1 < line_.size() && line_[at_ + 1] == '"') {
        text += line_[++at_];
      } else {
        ++at_;
        if (at_ < line_.size() && !IsBlank(line_[at_]) && line_[at_] != '&') {
          throw ScriptError{"a blank is missing behind the quoted text"};
        }
        return text;
      }
    }
    throw ScriptError{"the quoted text has no end"};
  }

  /// Whether the "&" inside of an unquoted piece joins.
  bool JoinsHere(std::size_t begin) const {
    if (line_[at_] != '&') return false;
    if (ConstantText(line_.substr(begin, at_ - begin)) != nullptr) return true;
    const std::string_view rest = line_.substr(at_ + 1);
    if (rest.substr(0, 1) == "\"") return true;
    return ConstantText(rest.substr(0, rest.find_first_of(" \t&"))) != nullptr;
  }

  std::string_view line_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<Word> SplitWords(std::string_view line) {
  return Splitter(line).Words();
}

}  // namespace veldrin
