#include "plan/check/section_reader.h"

namespace veldrin {

bool IsKeyword(const std::string& text) {
  return text == kDriveKeyword || text == kDrivenKeyword || text == kPrimaryKeyword || text == kMatrixKeyword;
}

ScannedField SectionReader::Peek() const {
  FieldScanner ahead = scanner;
  return ahead.Field();
}

bool SectionReader::EndsBefore(const std::string& what) {
  remarks.Fault(scanner.Line(), "the file ends where " + what + " is expected");
  return false;
}

bool SectionReader::ReadKeyword(const char* keyword) {
  if (scanner.AtEnd()) return EndsBefore(keyword);
  const ScannedField field = scanner.Field();
  remarks.CheckQuotes(field);
  if (field.text == keyword) return true;
  remarks.Fault(field.line, std::string("expected ") + keyword + ", found " + Quoted(field.text));
  FieldScanner ahead = scanner;
  while (!ahead.AtEnd()) {
    const std::string text = ahead.Field().text;
    if (text == keyword) {
      scanner = ahead;
      return true;
    }
    if (IsKeyword(text)) break;
  }
  return !IsNumber(field.text) && !IsKeyword(field.text);
}

}  // namespace veldrin
