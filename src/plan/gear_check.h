// The strict reading of a list's gear rows and of its matrix of 3rd and 4th gear.
#pragma once

#include "plan/field_scanner.h"
#include "plan/list_remarks.h"

namespace veldrin {

inline constexpr char kMatrixKeyword[] = "M34-ARRAY";

/// Reads `rows` gear rows up to the matrix' keyword, which is left unread. False when the keyword is not
/// found; then nothing can be said of what follows.
bool CheckGears(FieldScanner& scanner, int rows, ListRemarks& remarks);

/// Moves on to the matrix' keyword, which is left unread. False, at the end of the file, when there is none.
bool FindMatrix(FieldScanner& scanner);

/// Reads the matrix behind its keyword, up to the key lines.
void CheckMatrix(FieldScanner& scanner, int rows, ListRemarks& remarks);

}  // namespace veldrin
