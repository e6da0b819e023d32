#include "plan/field_scanner.h"

namespace veldrin {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

std::string WithoutBlanksBehind(std::string_view text) {
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

}  // namespace

int FieldScanner::Line() const {
  const bool behindLineEnd = at_ > 0 && IsLineEnd(text_[at_ - 1]);
  return AtEnd() && behindLineEnd ? line_ - 1 : line_;
}

bool FieldScanner::AtLineEnd() const {
  return !AtEnd() && IsLineEnd(text_[at_]);
}

/// Takes the line end that stands here.
bool FieldScanner::SkipLineEnd() {
  if (!AtLineEnd()) return false;
  if (text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n') ++at_;
  ++at_;
  ++line_;
  return true;
}

/// Takes one character, or one line end.
void FieldScanner::Skip() {
  if (!SkipLineEnd()) ++at_;
}

ScannedField FieldScanner::Field() {
  ScannedField field;
  while (!AtEnd() && IsBlank(text_[at_])) ++at_;
  field.line = Line();
  if (!AtEnd() && text_[at_] == '"') {
    const std::size_t begin = ++at_;
    while (!AtEnd() && text_[at_] != '"') Skip();
    field.text = text_.substr(begin, at_ - begin);
    field.unclosed = AtEnd();
    if (!AtEnd()) ++at_;
    const std::size_t behind = at_;
    while (!AtEnd() && text_[at_] != ',' && !AtLineEnd()) ++at_;
    field.dropsText = !WithoutBlanksBehind(text_.substr(behind, at_ - behind)).empty();
  } else {
    const std::size_t begin = at_;
    while (!AtEnd() && text_[at_] != ',' && !AtLineEnd()) ++at_;
    field.text = WithoutBlanksBehind(text_.substr(begin, at_ - begin));
  }
  field.endsLine = AtEnd() || AtLineEnd();
  if (!SkipLineEnd() && !AtEnd()) ++at_;
  return field;
}

std::string FieldScanner::RestOfLine() {
  const std::size_t begin = at_;
  while (!AtEnd() && !AtLineEnd()) ++at_;
  std::string line(text_.substr(begin, at_ - begin));
  SkipLineEnd();
  return line;
}

}  // namespace veldrin
