#include "plan/check/gear_check.h"

#include "model/workspace.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <map>
#include <string>
#include <vector>

namespace veldrin {

namespace {

constexpr int kFieldsOfACell = 3;
constexpr int kFieldsOfARow = kGears * kFieldsOfACell;

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
      remarks_.UnusedNumber(drive);
      remarks_.UnusedNumber(driven);
      return;
    }
    CheckText(gear, row, text);
    remarks_.Teeth(drive);
    remarks_.Teeth(driven);
  }

 private:
  void CheckText(int gear, int row, const ScannedField& field) {
    const std::string place = PlaceName(gear, row) + ": ";
    if (field.text.empty()) remarks_.Warn(field.line, place + "the text is empty");
    if (Contains(field.text, "-")) {
      remarks_.Warn(field.line,
                    place + Quoted(field.text) + " holds \"-\", which parts the gears in plan files");
    }
    if (field.text.find_first_of("\r\n") != std::string::npos) {
      remarks_.Warn(field.line,
                    place + Quoted(field.text) + " holds a line end, so plan files lose the pair");
    }
    const auto [same, isNew] = rowOfText_[gear].emplace(field.text, row);
    if (!isNew) {
      remarks_.Warn(field.line, place + Quoted(field.text) + " stands in row " +
                                    std::to_string(same->second) + " already");
    }
  }

  ListRemarks& remarks_;
  Table<std::map<std::string, int>, 1, kGears> rowOfText_;
};

/// Reads the rows as the program does, one field after the other, wherever the lines end. False when the
/// keyword does not stand where the rows end.
bool CheckAsFields(FieldScanner scanner, int rows, ListRemarks& remarks, ListPlaces& places) {
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
      if (gear == 1) places.gearRow[row] = fields[0].line;
      cells.Check(gear, row, fields[0], fields[1], fields[2]);
    }
  }
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
  CellChecker cells(remarks);
  int row = 0;
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
      continue;
    }
    for (int gear = 1; gear <= kGears; ++gear) {
      const int k = (gear - 1) * kFieldsOfACell;
      cells.Check(gear, row, fields.at(k), fields.at(k + 1), fields.at(k + 2));
    }
  }
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

bool GearRowsFit(FieldScanner scanner, int rows) {
  for (int k = 0; k < rows * kFieldsOfARow; ++k) {
    if (scanner.AtEnd() || scanner.Field().text == kMatrixKeyword) return false;
  }
  return rows > 0 && scanner.Field().text == kMatrixKeyword;
}

bool CheckGears(SectionReader& list, int rows) {
  const FieldScanner atRows = list.scanner;
  const bool found = FindMatrix(list.scanner);
  ListRemarks asFields;
  ListRemarks asLines;
  if (!CheckAsFields(atRows, rows, asFields, list.places) && found && HasARowOnALine(atRows)) {
    CheckAsLines(atRows, rows, asLines);
  }
  list.remarks.Append(asLines.Faults() > 0 ? asLines : asFields);
  return found;
}

}  // namespace veldrin
