#include "plan/check/ratio_check.h"

#include "model/workspace.h"
#include "plan/check/gear_check.h"

#include <optional>
#include <set>
#include <string>
#include <utility>

namespace veldrin {

namespace {

constexpr int kFewestOfTwoDigits = 10;
constexpr int kMostOfTwoDigits = 99;

/// A row's text has room for two digits on either side of its hyphen.
void WarnOfWidth(SectionReader& list, int line, int teeth) {
  if (teeth >= kFewestOfTwoDigits && teeth <= kMostOfTwoDigits) return;
  list.remarks.Warn(
      line, std::to_string(teeth) + " teeth do not have two digits, so plan files cannot name the row");
}

void CheckSize(SectionReader& list, const ScannedField& field, std::set<int>& sizes) {
  const std::optional<int> size = list.remarks.Teeth(field);
  if (!size) return;
  WarnOfWidth(list, field.line, *size);
  if (!sizes.insert(*size).second) list.remarks.Warn(field.line, "size " + field.text + " stands twice");
}

/// Whether the three fields that come are those that head the gear rows.
bool AtRowHead(const SectionReader& list) {
  FieldScanner ahead = list.scanner;
  ahead.Field();
  ahead.Field();
  return ahead.Field().text == kPrimaryKeyword;
}

using TeethPairs = std::set<std::pair<int, int>>;

void CheckPrimary(SectionReader& list, const ScannedField& first, const ScannedField& second,
                  TeethPairs& pairs) {
  const std::optional<int> drive = list.remarks.Teeth(first);
  const std::optional<int> driven = list.remarks.Teeth(second);
  if (drive) WarnOfWidth(list, first.line, *drive);
  if (driven) WarnOfWidth(list, second.line, *driven);
  if (drive && driven && !pairs.emplace(*drive, *driven).second) {
    list.remarks.Warn(first.line, "primary pair " + first.text + "," + second.text + " stands twice");
  }
}

/// Whether a first number that is none begins something else than a pair with a slip of the pen.
bool IsNoPair(const SectionReader& list, const ScannedField& first) {
  if (IsNumber(first.text)) return false;
  if (first.endsLine || list.scanner.AtEnd()) return true;
  const ScannedField second = list.Peek();
  return !IsNumber(second.text) || !second.endsLine;
}

/// The two lines behind the end mark are free; where the mark does not end its own line, the rest of that is
/// one of them.
void CheckEndOfPrimaries(SectionReader& list, const ScannedField& mark) {
  if (mark.endsLine) return;
  list.remarks.Warn(mark.line, "what stands behind the end mark counts as the first of the two free lines");
}

/// Behind a full list one field is the end mark, whatever it holds. True where the list makes sense so.
bool TakeAnyEndMark(SectionReader& list, const ScannedField& field, int gearRows) {
  FieldScanner ahead = list.scanner;
  ahead.RestOfLine();
  ahead.RestOfLine();
  if (!GearRowsFit(ahead, gearRows)) return false;
  list.remarks.CheckQuotes(field);
  list.remarks.Warn(field.line, Quoted(field.text) + " is taken for the end mark of the full primary list");
  CheckEndOfPrimaries(list, field);
  return true;
}

}  // namespace

bool CheckSizes(SectionReader& list, const char* keyword, int limit) {
  if (!list.ReadKeyword(keyword)) return false;
  FieldScanner& scanner = list.scanner;
  const std::string name = std::string("the ") + keyword + " list";
  std::set<int> sizes;
  int count = 0;
  bool tooMany = false;
  const int firstLine = scanner.Line();
  while (true) {
    if (scanner.AtEnd()) {
      if (count == limit) break;  // the keyword that follows is missing
      return list.EndsBefore("the end mark 99 of " + name);
    }
    const ScannedField field = list.Peek();
    const bool atEnd = !IsNumber(field.text) && (IsKeyword(field.text) || AtRowHead(list));
    if (atEnd || (count == limit && AtRowHead(list))) {
      if (count < limit) list.remarks.Fault(field.line, "the end mark 99 of " + name + " is missing");
      break;
    }
    scanner.Field();
    const bool full = count >= limit;
    const bool isMark = IsEndMark(field);
    if (full && !tooMany) {
      list.remarks.Fault(field.line, name + " is full with " + std::to_string(limit) + " sizes; " +
                                         (isMark ? "a full list has no end mark" : "no more fit"));
      tooMany = true;
    }
    if (isMark) {
      list.remarks.WholeNumber(field);
      break;
    }
    ++count;
    if (!full) CheckSize(list, field, sizes);
  }
  if (count == 0) list.remarks.Fault(firstLine, name + " holds no size");
  return true;
}

bool CheckPrimaries(SectionReader& list, int gearRows) {
  FieldScanner& scanner = list.scanner;
  const int firstLine = scanner.Line();
  TeethPairs pairs;
  int count = 0;
  while (true) {
    if (scanner.AtEnd()) return list.EndsBefore("the end mark 99 of the primary list");
    const FieldScanner before = scanner;
    const ScannedField first = scanner.Field();
    if (IsEndMark(first)) {
      list.remarks.WholeNumber(first);
      CheckEndOfPrimaries(list, first);
      break;
    }
    if (count == kPrimaryFileLimit && TakeAnyEndMark(list, first, gearRows)) break;
    if (IsNoPair(list, first)) {
      list.remarks.Fault(first.line, "the end mark 99 of the primary list is missing");
      scanner = before;
      break;
    }
    if (count == kPrimaryFileLimit) {
      list.remarks.Fault(first.line, "more than " + std::to_string(kPrimaryFileLimit) + " primary pairs");
    }
    ++count;
    if (scanner.AtEnd()) return list.EndsBefore("the second number of a primary pair");
    CheckPrimary(list, first, scanner.Field(), pairs);
  }
  if (count == 0) list.remarks.Fault(firstLine, "there is no primary pair");
  return true;
}

}  // namespace veldrin
