// Tables as spreadsheets write them: lines of fields, in quotation marks where they hold the separator or a
// line end.
#pragma once

#include <string>
#include <vector>

namespace veldrin {

struct CsvRecord {
  int line = 0;  // where it begins, from 1
  std::vector<std::string> fields;
};

/// The records of the text but for blank lines. The separator is that of the first line: a semicolon or tab
/// where one stands outside of marks, else the comma. Blanks around a field without marks are left out.
/// Throws BadInput for a mark without its partner.
std::vector<CsvRecord> ReadCsv(const std::string& path, const std::string& text);

/// The number of a field: with a point, or with a comma where it holds no point. Raises faults 13 and 6.
double CsvNumber(const std::string& field);

}  // namespace veldrin
