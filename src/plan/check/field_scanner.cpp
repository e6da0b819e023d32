#include "plan/check/field_scanner.h"

#include "runtime/field_scan.h"

namespace veldrin {

int FieldScanner::Line() const {
  const bool behindLineEnd = at_ > 0 && (text_[at_ - 1] == '\r' || text_[at_ - 1] == '\n');
  return AtEnd() && behindLineEnd ? line_ - 1 : line_;
}

void FieldScanner::GoTo(std::size_t at) {
  line_ += CountLineEnds(text_.substr(at_, at - at_));
  at_ = at;
}

ScannedField FieldScanner::Field() {
  const FieldScan found = ScanField(text_, at_);
  GoTo(found.begin);
  const int line = Line();
  GoTo(found.next);
  return {std::string(found.text), line, found.unclosed, found.dropsText, found.endsLine};
}

std::string FieldScanner::RestOfLine() {
  const LineScan found = ScanLine(text_, at_);
  GoTo(found.next);
  return std::string(found.text);
}

}  // namespace veldrin
