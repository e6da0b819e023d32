#include "runtime/text_file.h"

#include "runtime/conversion.h"
#include "runtime/fault.h"

namespace veldrin {

namespace {

bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

}  // namespace

void TextReader::SkipBlanks() {
  while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
}

bool TextReader::SkipLineEnd() {
  if (at_ >= text_.size() || !IsLineEnd(text_[at_])) return false;
  if (text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n') ++at_;
  ++at_;
  return true;
}

std::string TextReader::Field() {
  if (AtEnd()) Raise(kFaultPastEnd);
  SkipBlanks();
  std::string field;
  if (at_ < text_.size() && text_[at_] == '"') {
    const std::size_t close = text_.find('"', ++at_);
    const std::size_t end = close == std::string::npos ? text_.size() : close;
    field = text_.substr(at_, end - at_);
    at_ = close == std::string::npos ? end : end + 1;
    while (at_ < text_.size() && text_[at_] != ',' && !IsLineEnd(text_[at_])) ++at_;
  } else {
    const std::size_t begin = at_;
    while (at_ < text_.size() && text_[at_] != ',' && !IsLineEnd(text_[at_])) ++at_;
    std::size_t end = at_;
    while (end > begin && (text_[end - 1] == ' ' || text_[end - 1] == '\t')) --end;
    field = text_.substr(begin, end - begin);
  }
  if (!SkipLineEnd() && at_ < text_.size()) ++at_;
  return field;
}

std::int16_t TextReader::Int16Field() {
  return ParseInt16(Field());
}

float TextReader::SingleField() {
  return ParseSingle(Field());
}

std::string TextReader::Line() {
  if (AtEnd()) Raise(kFaultPastEnd);
  const std::size_t begin = at_;
  while (at_ < text_.size() && !IsLineEnd(text_[at_])) ++at_;
  std::string line = text_.substr(begin, at_ - begin);
  SkipLineEnd();
  return line;
}

}  // namespace veldrin
