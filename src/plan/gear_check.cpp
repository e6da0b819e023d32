#include "plan/gear_check.h"

#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "workspace/workspace.h"

#include <map>
#include <string>
#include <vector>

namespace veldrin {

namespace {

constexpr int kFieldsOfACell = 3;
constexpr int kFieldsOfARow = kGears * kFieldsOfACell;

bool IsNumber(const std::string& text) {
  return Guarded([&] { ParseNumber(text); }) == 0;
}

std::string PlaceName(int gear, int row) {
  return "gear " + std::to_string(gear) + ", row " + std::to_string(row);
}

/// The cells of one gear table, checked one by one in the order of the file.
class CellChecker {
 public:
  explicit CellChecker(ListRemarks& remarks) : remarks_(remarks) {}

  void Check(int gear, int row, const ScannedField& text, const ScannedField& drive,
             const ScannedField& driven) {
    remarks_.CheckQuotes(text);
    if (text.text == kNoPair) {
      remarks_.WholeNumber(drive);
      remarks_.WholeNumber(driven);
      return;
    }
    CheckText(gear, row, text);
    remarks_.Teeth(drive);
    remarks_.Teeth(driven);
  }

  /// Gears none of whose cells held a pair, told at the line of the first row.
  void CheckColumns(int line) {
    for (int gear = 1; gear <= kGears; ++gear) {
      if (rowOfText_[gear].empty())
        remarks_.Fault(line, "gear " + std::to_string(gear) + " has no pair in any row");
    }
  }

 private:
  void CheckText(int gear, int row, const ScannedField& field) {
    const std::string place = PlaceName(gear, row) + ": ";
    if (field.text.empty()) remarks_.Fault(field.line, place + "the text is empty");
    if (Contains(field.text, "-")) {
      remarks_.Fault(field.line,
                     place + Quoted(field.text) + " holds \"-\", which parts the gears in plan files");
    }
    const auto [same, isNew] = rowOfText_[gear].emplace(field.text, row);
    if (!isNew) {
      remarks_.Fault(field.line, place + Quoted(field.text) + " stands in row " +
                                     std::to_string(same->second) + " already");
    }
  }

  ListRemarks& remarks_;
  Table<std::map<std::string, int>, 1, kGears> rowOfText_;
};

/// Reads the rows as the program does, one field after the other, wherever the lines end. False when the
/// keyword does not stand where the rows end.
bool CheckAsFields(FieldScanner scanner, int rows, ListRemarks& remarks) {
  const int firstLine = scanner.Line();
  CellChecker cells(remarks);
  for (int row = 1; row <= rows; ++row) {
    for (int gear = 1; gear <= kGears; ++gear) {
      std::vector<ScannedField> fields;
      for (int k = 0; k < kFieldsOfACell; ++k) {
        if (scanner.AtEnd()) {
          remarks.Fault(scanner.Line(), "the file ends in " + PlaceName(gear, row));
          return false;
        }
        fields.push_back(scanner.Field());
        if (fields.back().text == kMatrixKeyword) {
          remarks.Fault(fields.back().line, std::string(kMatrixKeyword) + " comes too early: " +
                                                PlaceName(gear, row) + " is not complete");
          return false;
        }
      }
      cells.Check(gear, row, fields[0], fields[1], fields[2]);
    }
  }
  cells.CheckColumns(firstLine);
  if (scanner.AtEnd()) {
    remarks.Fault(scanner.Line(), std::string("the file ends where ") + kMatrixKeyword + " is expected");
    return false;
  }
  const ScannedField next = scanner.Field();
  if (next.text == kMatrixKeyword) return true;
  remarks.Fault(next.line, std::string("expected ") + kMatrixKeyword + " behind " + std::to_string(rows) +
                               " gear rows, found " + Quoted(next.text));
  return false;
}

/// Reads one row to a line, so that a field too few or too many is told where it is.
void CheckAsLines(FieldScanner scanner, int rows, ListRemarks& remarks) {
  const int firstLine = scanner.Line();
  CellChecker cells(remarks);
  int row = 0;
  bool allRead = true;
  while (!scanner.AtEnd()) {
    std::vector<ScannedField> fields;
    while (fields.empty() || !fields.back().endsLine) fields.push_back(scanner.Field());
    const ScannedField& first = fields.front();
    if (first.text == kMatrixKeyword) {
      if (row != rows) {
        remarks.Fault(first.line,
                      std::to_string(row) + " gear rows, but " + std::to_string(rows) + " are announced");
      }
      break;
    }
    ++row;
    const int count = static_cast<int>(fields.size());
    if (count != kFieldsOfARow) {
      remarks.Fault(first.line,
                    "gear row " + std::to_string(row) + ": text, driving and driven teeth of six gears are " +
                        std::to_string(kFieldsOfARow) + " fields, found " + std::to_string(count));
      allRead = false;
      continue;
    }
    for (int gear = 1; gear <= kGears; ++gear) {
      const int k = (gear - 1) * kFieldsOfACell;
      cells.Check(gear, row, fields.at(k), fields.at(k + 1), fields.at(k + 2));
    }
  }
  if (allRead) cells.CheckColumns(firstLine);
}

/// Whether some line before the matrix holds exactly one row.
bool HasARowOnALine(FieldScanner scanner) {
  while (!scanner.AtEnd()) {
    int count = 0;
    bool ends = false;
    for (; !ends; ++count) {
      const ScannedField field = scanner.Field();
      if (field.text == kMatrixKeyword) return false;
      ends = field.endsLine;
    }
    if (count == kFieldsOfARow) return true;
  }
  return false;
}

}  // namespace

bool FindMatrix(FieldScanner& scanner) {
  while (!scanner.AtEnd()) {
    const FieldScanner before = scanner;
    if (scanner.Field().text != kMatrixKeyword) continue;
    scanner = before;
    return true;
  }
  return false;
}

bool CheckGears(FieldScanner& scanner, int rows, ListRemarks& remarks) {
  const FieldScanner atRows = scanner;
  const bool found = FindMatrix(scanner);
  ListRemarks asFields;
  ListRemarks asLines;
  if (!CheckAsFields(atRows, rows, asFields) && found && HasARowOnALine(atRows)) {
    CheckAsLines(atRows, rows, asLines);
  }
  remarks.Append(asLines.Faults() > 0 ? asLines : asFields);
  return found;
}

void CheckMatrix(FieldScanner& scanner, int rows, ListRemarks& remarks) {
  const int needed = rows * rows;
  const std::string size =
      std::to_string(needed) + " numbers are needed for " + std::to_string(rows) + " gear rows";
  bool lineEnded = true;
  for (int k = 0; k < needed; ++k) {
    const FieldScanner before = scanner;
    const ScannedField field = scanner.Field();
    const bool missing = before.AtEnd() || Contains(field.text, "=");
    if (missing) {
      remarks.Fault(field.line, "the matrix ends after " + std::to_string(k) + " numbers; " + size);
      scanner = before;
      return;
    }
    remarks.WholeNumber(field);
    lineEnded = field.endsLine;
  }
  FieldScanner ahead = scanner;
  const ScannedField next = ahead.Field();
  const bool more = lineEnded ? IsNumber(next.text) : !next.text.empty() && !Contains(next.text, "=");
  if (more) remarks.Fault(next.line, "the matrix goes on; " + size);
}

}  // namespace veldrin
