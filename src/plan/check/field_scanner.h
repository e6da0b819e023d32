// Fields and lines of a list file as the list reader takes them (runtime/field_scan.h), with the lines they
// stand on and with what the reader lets pass in silence. A scanner is a plain value: a copy looks ahead.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldrin {

/// One field.
struct ScannedField {
  std::string text;
  int line = 0;            // where it begins, from 1
  bool unclosed = false;   // its quotation mark has no partner
  bool dropsText = false;  // text stands between its closing quotation mark and the delimiter
  bool endsLine = false;   // a line end, or the file's, is its delimiter
};

class FieldScanner {
 public:
  /// `text` has to outlive the scanner.
  explicit FieldScanner(std::string_view text) : text_(text) {}

  bool AtEnd() const { return at_ >= text_.size(); }
  /// The line of the next character, from 1. At the end of the file the last line that holds something.
  int Line() const;

  /// The next field, an empty one at the end of the file.
  ScannedField Field();
  /// The rest of the line, without its end.
  std::string RestOfLine();

 private:
  /// Moves on, counting lines.
  void GoTo(std::size_t at);

  std::string_view text_;
  std::size_t at_ = 0;
  int line_ = 1;
};

}  // namespace veldrin
