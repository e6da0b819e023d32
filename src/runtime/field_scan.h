// Where the fields and lines of a hand-made text begin and end. The reader of files (text_file.h) and whoever
// has to tell what is wrong with a file read through the same two functions, and so alike.
//
// A field ends at a comma or a line end, which is consumed with it; blanks around it are ignored; a field in
// double quotes may hold commas and line ends. A line ends at CR LF, CR or LF.
#pragma once

#include <cstddef>
#include <string_view>

namespace veldrin {

/// One field, as it was found. `text` is a part of the text that was scanned.
struct FieldScan {
  std::string_view text;   // without the blanks around it, or without its quotation marks
  std::size_t begin = 0;   // its first character, a quotation mark included
  std::size_t next = 0;    // behind its delimiter
  bool unclosed = false;   // its quotation mark has no partner
  bool dropsText = false;  // more than blanks stands between its closing quotation mark and its delimiter
  bool endsLine = false;   // a line end, or the text's, is its delimiter
};

/// The field that begins at `at`; an empty one at the text's end. Raises nothing.
FieldScan ScanField(std::string_view text, std::size_t at);

/// The rest of a line, as it was found.
struct LineScan {
  std::string_view text;  // without its end
  std::size_t next = 0;   // behind its end
};

/// The line that begins at `at`; an empty one at the text's end. Raises nothing.
LineScan ScanLine(std::string_view text, std::size_t at);

/// How many line ends `text` holds.
int CountLineEnds(std::string_view text);

}  // namespace veldrin
