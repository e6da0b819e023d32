#include "plan/check/matrix_check.h"

#include "runtime/text.h"

#include <string>

namespace veldrin {

namespace {

bool IsKeyLine(const std::string& text) {
  return Contains(text, "=");
}

}  // namespace

void CheckMatrix(SectionReader& list, int rows) {
  FieldScanner& scanner = list.scanner;
  const int needed = rows * rows;
  const std::string size =
      std::to_string(needed) + " numbers are needed for " + std::to_string(rows) + " gear rows";
  bool lineEnded = true;
  for (int k = 0; k < needed; ++k) {
    const FieldScanner before = scanner;
    const ScannedField field = scanner.Field();
    if (before.AtEnd() || IsKeyLine(field.text)) {
      list.remarks.Fault(field.line, "the matrix ends after " + std::to_string(k) + " numbers; " + size);
      scanner = before;
      return;
    }
    list.remarks.WholeNumber(field);
    lineEnded = field.endsLine;
  }
  // What is left over counts as key lines, which have a sign of their own.
  const ScannedField next = list.Peek();
  const bool more = lineEnded ? IsNumber(next.text) : !next.text.empty() && !IsKeyLine(next.text);
  if (more) list.remarks.Warn(next.line, "the matrix goes on; " + size + ", the others are ignored");
}

}  // namespace veldrin
