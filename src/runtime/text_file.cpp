#include "runtime/text_file.h"

#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/field_scan.h"

namespace veldrin {

std::string TextReader::Field() {
  if (AtEnd()) Raise(kFaultPastEnd);
  const FieldScan field = ScanField(text_, at_);
  at_ = field.next;
  return std::string(field.text);
}

std::int16_t TextReader::Int16Field() {
  return ParseInt16(Field());
}

float TextReader::SingleField() {
  return ParseSingle(Field());
}

std::string TextReader::Line() {
  if (AtEnd()) Raise(kFaultPastEnd);
  const LineScan line = ScanLine(text_, at_);
  at_ = line.next;
  return std::string(line.text);
}

}  // namespace veldrin
