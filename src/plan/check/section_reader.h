// What the checks of a list's sections share: the fields as they come, the remarks so far, and the way from
// one section's keyword to the next.
#pragma once

#include "plan/check/field_scanner.h"
#include "plan/check/list_places.h"
#include "plan/check/list_remarks.h"

#include <string>
#include <string_view>

namespace veldrin {

inline constexpr char kDriveKeyword[] = "FINAL-DRIVE";
inline constexpr char kDrivenKeyword[] = "FINAL-DRIVEN";
inline constexpr char kPrimaryKeyword[] = "PRIMARY";
inline constexpr char kMatrixKeyword[] = "M34-ARRAY";

bool IsKeyword(const std::string& text);

struct SectionReader {
  explicit SectionReader(std::string_view text) : scanner(text) {}

  FieldScanner scanner;
  ListRemarks remarks;
  ListPlaces places;

  /// The next field, which stays.
  ScannedField Peek() const;
  /// Tells that the file ends too early. Always false.
  bool EndsBefore(const std::string& what);
  /// Reads a section's keyword. Where another text stands, looks for the keyword further on; a text that is
  /// neither number nor keyword counts as the keyword misspelt. False where neither helps.
  bool ReadKeyword(const char* keyword);
};

}  // namespace veldrin
