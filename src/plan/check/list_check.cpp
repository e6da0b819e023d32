#include "plan/check/list_check.h"

#include "model/file_tags.h"
#include "model/workspace.h"
#include "plan/check/gear_check.h"
#include "plan/check/key_check.h"
#include "plan/check/machine_check.h"
#include "plan/check/matrix_check.h"
#include "plan/check/name_check.h"
#include "plan/check/ratio_check.h"
#include "plan/check/section_reader.h"
#include "plan/files/machine.h"

#include <optional>

namespace veldrin {

namespace {

bool CheckTag(SectionReader& list) {
  const ScannedField tag = list.scanner.Field();
  list.remarks.CheckQuotes(tag);
  if (IsListTag(tag.text)) return true;
  list.remarks.Fault(tag.line, "no machine list: it begins with " + Quoted(tag.text) + " and not with LIST");
  return false;
}

bool CheckName(SectionReader& list, const std::string& baseName) {
  if (list.scanner.AtEnd()) return list.EndsBefore("the machine's name");
  const FieldScanner before = list.scanner;
  const ScannedField name = list.scanner.Field();
  const bool isKeyword = IsKeyword(name.text) && list.Peek().text != kDriveKeyword;
  if (name.text.empty() || isKeyword) {
    list.remarks.Fault(name.line, "the machine's name is missing");
    if (isKeyword) list.scanner = before;
  } else {
    CheckMachineName(name, baseName, list.remarks);
  }
  return true;
}

/// The three fields that head the gear rows, and what they say.
struct RowHead {
  int line = 0;
  int announced = 0;  // gear rows; 0 while the list does not say a possible number
};

/// False where what follows cannot be told.
bool CheckRowHead(SectionReader& list, RowHead& head) {
  if (list.scanner.AtEnd()) return list.EndsBefore("GEAR-ROWS");
  list.remarks.CheckQuotes(list.scanner.Field());
  if (list.scanner.AtEnd()) return list.EndsBefore("the number of gear rows");
  const ScannedField field = list.scanner.Field();
  const std::optional<int> rows = list.remarks.WholeNumber(field);
  head.line = field.line;
  if (rows && *rows >= 1) {
    head.announced = *rows;
  } else if (rows) {
    list.remarks.Fault(field.line,
                       field.text + " gear rows; 1 to " + std::to_string(kGearRowLimit) + " are possible");
  }
  return list.ReadKeyword(kPrimaryKeyword);
}

bool SkipHeadings(SectionReader& list) {
  for (int k = 0; k < 2; ++k) {
    if (list.scanner.AtEnd()) return list.EndsBefore("one of the two free lines");
    list.scanner.RestOfLine();
  }
  return true;
}

/// How many gear rows to read. Of more than the tables hold the program reads as many as they hold, which
/// passes when no more are there.
int RowsToRead(SectionReader& list, const RowHead& head) {
  if (head.announced <= kGearRowLimit) return head.announced;
  const std::string limit = std::to_string(kGearRowLimit);
  if (GearRowsFit(list.scanner, kGearRowLimit)) {
    list.remarks.Warn(head.line, std::to_string(head.announced) + " gear rows, of which the program reads " +
                                     limit + "; it ends where it looks for the next");
    return kGearRowLimit;
  }
  list.remarks.Fault(head.line,
                     std::to_string(head.announced) + " gear rows; 1 to " + limit + " are possible");
  return 0;
}

/// Gear rows and matrix. False where what follows cannot be told.
bool CheckGearTable(SectionReader& list, const RowHead& head) {
  const int rows = RowsToRead(list, head);
  if (rows == 0) return FindMatrix(list.scanner);
  if (!CheckGears(list, rows)) return false;
  const ScannedField keyword = list.scanner.Field();
  list.remarks.CheckQuotes(keyword);
  list.places.matrix = keyword.line;
  CheckMatrix(list, rows);
  return true;
}

void CheckSections(SectionReader& list, const std::string& baseName) {
  RowHead head;
  if (CheckTag(list) && CheckName(list, baseName) && CheckSizes(list, kDriveKeyword, kFinalDriveLimit) &&
      CheckSizes(list, kDrivenKeyword, kFinalDrivenLimit) && CheckRowHead(list, head) &&
      CheckPrimaries(list, head.announced) && SkipHeadings(list) && CheckGearTable(list, head)) {
    CheckKeyLines(list);
  }
}

/// The line of the first character that no text file holds, 0 when there is none. Older editors end a file
/// with a character of their own.
int LineOfBinary(std::string_view text) {
  constexpr char kEndOfFile = '\x1A';
  if (text.back() == kEndOfFile) text.remove_suffix(1);
  int line = 1;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    const bool lineEnd = c == '\n' || (c == '\r' && (at + 1 == text.size() || text[at + 1] != '\n'));
    if (lineEnd) ++line;
    if (static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r' && c != '\n') return line;
  }
  return 0;
}

ListRemarks OneFault(int line, const char* text) {
  ListRemarks remarks;
  remarks.Fault(line, text);
  return remarks;
}

}  // namespace

ListRemarks CheckList(std::string_view text, const std::string& baseName) {
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) return OneFault(1, "the file is empty");
  SectionReader list(text);
  CheckSections(list, baseName);
  if (const int line = LineOfBinary(text); line != 0) {
    if (list.remarks.Faults() > 0) return OneFault(line, "no text file: it holds control characters");
    list.remarks.Warn(line, "a control character");
  }
  if (list.remarks.Faults() == 0) CheckMachine(ReadMachine(std::string(text)), list.places, list.remarks);
  return list.remarks;
}

}  // namespace veldrin
