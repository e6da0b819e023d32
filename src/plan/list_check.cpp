#include "plan/list_check.h"

#include "plan/field_scanner.h"
#include "plan/gear_check.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "workspace/workspace.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace veldrin {

namespace {

constexpr char kDriveKeyword[] = "FINAL-DRIVE";
constexpr char kDrivenKeyword[] = "FINAL-DRIVEN";
constexpr char kPrimaryKeyword[] = "PRIMARY";

/// A key of the key lines, with the range of its values.
struct KeyRange {
  const char* key;
  double lowest;
  double highest;
};

constexpr KeyRange kKeys[] = {
    {"TYRE_L", 1, 3},        {"CHECK_NE", 5000, 24000}, {"SHIFT_NE", 5000, 24000},
    {"MAX_SPEED", 100, 340}, {"MAX_NE", 5000, 24000},
};

bool IsKeyword(const std::string& text) {
  return text == kDriveKeyword || text == kDrivenKeyword || text == kPrimaryKeyword || text == kMatrixKeyword;
}

bool IsNumber(const std::string& text) {
  return Guarded([&] { ParseNumber(text); }) == 0;
}

class ListChecker {
 public:
  ListChecker(std::string_view text, const std::string& baseName) : scanner_(text), baseName_(baseName) {}

  ListRemarks Check() {
    if (CheckTag() && CheckName() && CheckSizes(kDriveKeyword, kFinalDriveLimit) &&
        CheckSizes(kDrivenKeyword, kFinalDrivenLimit) && CheckRowHead() && CheckPrimaries() &&
        SkipHeadings() && CheckGearTable()) {
      CheckKeyLines();
    }
    return remarks_;
  }

 private:
  void Fault(int line, std::string text) { remarks_.Fault(line, std::move(text)); }

  /// Tells that the file ends too early. Always false.
  bool EndsBefore(const std::string& what) {
    Fault(scanner_.Line(), "the file ends where " + what + " is expected");
    return false;
  }

  ScannedField Peek() const {
    FieldScanner ahead = scanner_;
    return ahead.Field();
  }

  bool CheckTag() {
    const ScannedField tag = scanner_.Field();
    if (tag.text.starts_with("LIST")) return true;
    Fault(tag.line, "no machine list: it begins with " + Quoted(tag.text) + " and not with LIST");
    return false;
  }

  bool CheckName() {
    if (scanner_.AtEnd()) return EndsBefore("the machine's name");
    const ScannedField name = Peek();
    if (name.text.empty() || IsKeyword(name.text)) {
      Fault(name.line, "the machine's name is missing");
      if (!name.text.empty()) return true;
    } else if (!EqualsIgnoringCase(name.text, baseName_)) {
      remarks_.Warn(name.line, "the name " + Quoted(name.text) +
                                   " differs from the file's, so plan files will not find it");
    }
    remarks_.CheckQuotes(name);
    scanner_.Field();
    return true;
  }

  /// Reads a section's keyword. Where another text stands, looks for the keyword further on; a text that is
  /// neither number nor keyword counts as the keyword misspelt. False where neither helps.
  bool ReadKeyword(const char* keyword) {
    if (scanner_.AtEnd()) return EndsBefore(keyword);
    const ScannedField field = scanner_.Field();
    if (field.text == keyword) return true;
    Fault(field.line, std::string("expected ") + keyword + ", found " + Quoted(field.text));
    FieldScanner ahead = scanner_;
    while (!ahead.AtEnd()) {
      const std::string text = ahead.Field().text;
      if (text == keyword) {
        scanner_ = ahead;
        return true;
      }
      if (IsKeyword(text)) break;
    }
    return !IsNumber(field.text) && !IsKeyword(field.text);
  }

  /// Whether the three fields that come are those that head the gear rows.
  bool AtRowHead() const {
    FieldScanner ahead = scanner_;
    ahead.Field();
    ahead.Field();
    return ahead.Field().text == kPrimaryKeyword;
  }

  bool CheckSizes(const char* keyword, int limit) {
    if (!ReadKeyword(keyword)) return false;
    const std::string list = std::string("the ") + keyword + " list";
    std::set<int> sizes;
    int count = 0;
    bool tooMany = false;
    const int firstLine = scanner_.Line();
    while (true) {
      if (scanner_.AtEnd()) return EndsBefore("the end mark 99 of " + list);
      const ScannedField field = Peek();
      if (!IsNumber(field.text) && (IsKeyword(field.text) || AtRowHead())) {
        if (count < limit) Fault(field.line, "the end mark 99 of " + list + " is missing");
        break;
      }
      scanner_.Field();
      const bool full = count >= limit;
      if (full && !tooMany) {
        Fault(field.line, list + " is full with " + std::to_string(limit) + " sizes; " +
                              (field.text == kNoPair ? "a full list has no end mark" : "no more fit"));
        tooMany = true;
      }
      if (field.text == kNoPair) break;
      ++count;
      if (!full) CheckSize(field, sizes);
    }
    if (count == 0) Fault(firstLine, list + " holds no size");
    return true;
  }

  void CheckSize(const ScannedField& field, std::set<int>& sizes) {
    const std::optional<int> size = remarks_.Teeth(field);
    if (!size) return;
    WarnOfWidth(field.line, *size);
    if (!sizes.insert(*size).second) remarks_.Warn(field.line, "size " + field.text + " stands twice");
  }

  void WarnOfWidth(int line, int teeth) {
    if (teeth >= 10 && teeth <= 99) return;
    remarks_.Warn(line,
                  std::to_string(teeth) + " teeth do not have two digits, so plan files cannot name the row");
  }

  bool CheckRowHead() {
    if (scanner_.AtEnd()) return EndsBefore("GEAR-ROWS");
    scanner_.Field();
    if (scanner_.AtEnd()) return EndsBefore("the number of gear rows");
    const ScannedField field = scanner_.Field();
    const std::optional<int> rows = remarks_.WholeNumber(field);
    if (rows && *rows >= 1 && *rows <= kGearRowLimit) {
      rows_ = *rows;
    } else if (rows) {
      Fault(field.line, field.text + " gear rows; 1 to " + std::to_string(kGearRowLimit) + " are possible");
    }
    return ReadKeyword(kPrimaryKeyword);
  }

  bool CheckPrimaries() {
    const int firstLine = scanner_.Line();
    std::set<std::pair<int, int>> pairs;
    int count = 0;
    while (true) {
      if (scanner_.AtEnd()) return EndsBefore("the end mark 99 of the primary list");
      const FieldScanner before = scanner_;
      const ScannedField first = scanner_.Field();
      if (first.text == kNoPair) {
        if (!first.endsLine) {
          remarks_.Warn(first.line,
                        "what stands behind the end mark counts as the first of the two free lines");
        }
        break;
      }
      if (IsNoPair(first)) {
        Fault(first.line, "the end mark 99 of the primary list is missing");
        scanner_ = before;
        break;
      }
      if (count == kPrimaryFileLimit) {
        Fault(first.line, "more than " + std::to_string(kPrimaryFileLimit) + " primary pairs");
      }
      ++count;
      if (scanner_.AtEnd()) return EndsBefore("the second number of a primary pair");
      CheckPrimary(first, scanner_.Field(), pairs);
    }
    if (count == 0) Fault(firstLine, "there is no primary pair");
    return true;
  }

  /// Whether a first number that is none begins something else than a pair with a slip of the pen.
  bool IsNoPair(const ScannedField& first) const {
    if (IsNumber(first.text)) return false;
    if (first.endsLine || scanner_.AtEnd()) return true;
    const ScannedField second = Peek();
    return !IsNumber(second.text) || !second.endsLine;
  }

  void CheckPrimary(const ScannedField& first, const ScannedField& second,
                    std::set<std::pair<int, int>>& pairs) {
    const std::optional<int> drive = remarks_.Teeth(first);
    const std::optional<int> driven = remarks_.Teeth(second);
    if (drive) WarnOfWidth(first.line, *drive);
    if (driven) WarnOfWidth(second.line, *driven);
    if (drive && driven && !pairs.emplace(*drive, *driven).second) {
      remarks_.Warn(first.line, "primary pair " + first.text + "," + second.text + " stands twice");
    }
  }

  bool SkipHeadings() {
    for (int k = 0; k < 2; ++k) {
      if (scanner_.AtEnd()) return EndsBefore("one of the two free lines");
      scanner_.RestOfLine();
    }
    return true;
  }

  bool CheckGearTable() {
    if (rows_ == 0) return FindMatrix(scanner_);
    if (!CheckGears(scanner_, rows_, remarks_)) return false;
    scanner_.Field();
    CheckMatrix(scanner_, rows_, remarks_);
    return true;
  }

  void CheckKeyLines() {
    while (!scanner_.AtEnd()) {
      const int line = scanner_.Line();
      CheckKeyLine(line, scanner_.RestOfLine());
    }
  }

  void CheckKeyLine(int line, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) return;
    const std::string key = text.substr(0, equals);
    const std::string value = Trim(text.substr(equals + 1));
    const auto* known =
        std::find_if(std::begin(kKeys), std::end(kKeys), [&](const KeyRange& k) { return key == k.key; });
    if (known == std::end(kKeys)) {
      Fault(line, "unknown key " + Quoted(key));
      return;
    }
    double number = 0;
    if (Guarded([&] { number = ParseNumber(value); }) != 0) {
      Fault(line, key + ": " + Quoted(value) + " is no number");
    } else if (number < known->lowest || number > known->highest) {
      Fault(line, key + ": " + value + " is out of range, " + ShortestText(known->lowest) + " to " +
                      ShortestText(known->highest));
    }
  }

  FieldScanner scanner_;
  const std::string baseName_;
  ListRemarks remarks_;
  int rows_ = 0;  // 0 while the list does not say a possible number
};

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

}  // namespace

ListRemarks CheckList(std::string_view text, const std::string& baseName) {
  ListRemarks remarks;
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) {
    remarks.Fault(1, "the file is empty");
    return remarks;
  }
  if (const int line = LineOfBinary(text); line != 0) {
    remarks.Fault(line, "no text file: it holds control characters");
    return remarks;
  }
  return ListChecker(text, baseName).Check();
}

}  // namespace veldrin
