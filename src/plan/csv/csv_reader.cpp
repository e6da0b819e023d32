#include "plan/csv/csv_reader.h"

#include "plan/files/bad_input.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

namespace {

char SeparatorOf(const std::string& text) {
  bool marked = false;
  for (const char c : text) {
    if (c == '"') marked = !marked;
    if (!marked && (c == ';' || c == '\t')) return c;
    if (!marked && (c == '\r' || c == '\n')) break;
  }
  return ',';
}

class CsvScanner {
 public:
  CsvScanner(const std::string& path, const std::string& text)
      : path_(path), text_(text), separator_(SeparatorOf(text)) {}

  std::vector<CsvRecord> Records() {
    std::vector<CsvRecord> records;
    while (at_ < text_.size()) {
      CsvRecord record{line_, {}};
      while (!ReadField(record)) continue;
      const bool isBlank = record.fields.size() == 1 && record.fields[0].empty();
      if (!isBlank) records.push_back(record);
    }
    return records;
  }

 private:
  /// Reads a field and its delimiter. True where that ends the line.
  bool ReadField(CsvRecord& record) {
    std::size_t begin = at_;
    while (begin < text_.size() && text_[begin] == ' ') ++begin;
    if (begin < text_.size() && text_[begin] == '"') {
      at_ = begin + 1;
      record.fields.push_back(MarkedText());
    } else {
      const std::string delimiters = {separator_, '\r', '\n'};
      at_ = std::min(text_.find_first_of(delimiters, at_), text_.size());
      record.fields.push_back(Trim(text_.substr(begin, std::max(begin, at_) - begin)));
    }
    return TakeDelimiter();
  }

  std::string MarkedText() {
    const int first = line_;
    std::string field;
    for (; at_ < text_.size(); ++at_) {
      if (text_[at_] == '\n') ++line_;
      if (text_[at_] != '"') {
        field += text_[at_];
      } else if (at_ + 1 < text_.size() && text_[at_ + 1] == '"') {
        field += text_[at_++];
      } else {
        ++at_;
        return field;
      }
    }
    RefuseLine(path_, first, "a quotation mark has no partner");
  }

  bool TakeDelimiter() {
    while (at_ < text_.size() && text_[at_] != separator_ && text_[at_] != '\r' && text_[at_] != '\n') {
      if (text_[at_] != ' ') RefuseLine(path_, line_, "text stands behind a closing quotation mark");
      ++at_;
    }
    if (at_ >= text_.size()) return true;
    const char delimiter = text_[at_++];
    if (delimiter == separator_) return false;
    if (delimiter == '\r' && at_ < text_.size() && text_[at_] == '\n') ++at_;
    ++line_;
    return true;
  }

  const std::string& path_;
  const std::string& text_;
  char separator_;
  std::size_t at_ = 0;
  int line_ = 1;
};

}  // namespace

std::vector<CsvRecord> ReadCsv(const std::string& path, const std::string& text) {
  return CsvScanner(path, text).Records();
}

double CsvNumber(const std::string& field) {
  const bool hasPoint = field.find('.') != std::string::npos;
  return ParseNumber(field, hasPoint ? '.' : ',');
}

}  // namespace veldrin
