// Sequential reading of a text file: fields in the manner of hand-made lists, and whole lines, by the rule of
// field_scan.h. Fields and lines may be mixed: each read goes on where the last one ended.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace veldrin {

/// A text read from its beginning to its end.
class TextReader {
 public:
  explicit TextReader(std::string text) : text_(std::move(text)) {}

  bool AtEnd() const { return at_ >= text_.size(); }

  /// Whether nothing but blank lines is left.
  bool OnlyBlankLinesLeft() const { return text_.find_first_not_of(" \t\r\n", at_) == std::string::npos; }

  /// The next field as text. Raises fault 62 at the end of the file.
  std::string Field();

  /// The next field as a 16-bit number, read with a point as separator and rounded half to even. The field is
  /// consumed in any case. Raises fault 62 at the end, 13 for a text that is no number, 6 beyond 16 bits.
  std::int16_t Int16Field();

  /// The next field as a 32-bit float, in the same way.
  float SingleField();

  /// The rest of the line, without its end. Raises fault 62 at the end of the file.
  std::string Line();

 private:
  std::string text_;
  std::size_t at_ = 0;
};

}  // namespace veldrin
