// The strict reading of a list's gear rows.
#pragma once

#include "plan/check/section_reader.h"

namespace veldrin {

/// Whether `rows` gear rows, read as the program reads them, end where the matrix begins.
bool GearRowsFit(FieldScanner scanner, int rows);

/// Reads `rows` gear rows up to the matrix' keyword, which is left unread. False when the keyword is not
/// found; then nothing can be said of what follows.
bool CheckGears(SectionReader& list, int rows);

/// Moves on to the matrix' keyword, which is left unread. False, at the end of the file, when there is none.
bool FindMatrix(FieldScanner& scanner);

}  // namespace veldrin
