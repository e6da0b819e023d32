#include "plan/check/list_remarks.h"

#include "model/words.h"
#include "model/workspace.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

void ListRemarks::Fault(int line, std::string text) {
  remarks_.push_back({line, false, std::move(text)});
  ++faults_;
}

void ListRemarks::Warn(int line, std::string text) {
  remarks_.push_back({line, true, std::move(text)});
}

std::optional<int> ListRemarks::WholeNumber(const ScannedField& field) {
  WarnOfQuotes(field);
  double value = 0;
  const int fault = Guarded([&] { value = ParseNumber(field.text); });
  if (fault == kFaultTypeMismatch) {
    Fault(field.line, Quoted(field.text) + " is no number");
    return {};
  }
  std::int16_t whole = 0;
  if (fault != 0 || Guarded([&] { whole = ToInt16(value); }) != 0) {
    Fault(field.line, field.text + " is out of range, -32768 to 32767");
    return {};
  }
  if (value != whole) {
    Warn(field.line, field.text + " is not a whole number; it is read as " + std::to_string(whole));
  }
  return whole;
}

std::optional<int> ListRemarks::Teeth(const ScannedField& field) {
  const std::optional<int> teeth = WholeNumber(field);
  if (teeth && *teeth < 1) {
    Fault(field.line, field.text + " teeth: at least 1 is needed");
    return {};
  }
  return teeth;
}

void ListRemarks::UnusedNumber(const ScannedField& field) {
  WarnOfQuotes(field);
  if (!IsNumber(field.text)) Warn(field.line, Quoted(field.text) + " is no number, but is not used");
}

void ListRemarks::CheckQuotes(const ScannedField& field) {
  if (field.unclosed) Fault(field.line, "a quotation mark is not closed");
  if (field.dropsText) {
    Warn(field.line, "text behind the closing quotation mark of " + Quoted(field.text) + " is ignored");
  }
}

/// A number that swallows the file shows as none; one before the file's end is read all the same.
void ListRemarks::WarnOfQuotes(const ScannedField& field) {
  if (field.unclosed) {
    Warn(field.line, "a quotation mark is not closed");
  } else {
    CheckQuotes(field);
  }
}

std::vector<ListRemark> ListRemarks::InOrder() const {
  std::vector<ListRemark> ordered = remarks_;
  std::stable_sort(ordered.begin(), ordered.end(),
                   [](const ListRemark& a, const ListRemark& b) { return a.line < b.line; });
  return ordered;
}

void ListRemarks::Append(const ListRemarks& others) {
  remarks_.insert(remarks_.end(), others.remarks_.begin(), others.remarks_.end());
  faults_ += others.faults_;
}

bool IsEndMark(const ScannedField& field) {
  std::int16_t value = 0;
  return Guarded([&] { value = ParseInt16(field.text); }) == 0 && value == kEndMark;
}

bool IsNumber(const std::string& text) {
  return Guarded([&] { ParseNumber(text); }) != kFaultTypeMismatch;
}

std::string Quoted(const std::string& text) {
  constexpr int kLongest = 24;
  std::string shown;
  for (const std::string& character : Characters(Left(text, kLongest))) {
    const auto lead = static_cast<unsigned char>(character.front());
    shown += lead < 0x20 || lead == 0x7F ? "?" : character;
  }
  return '"' + shown + (Length(text) > kLongest ? "...\"" : "\"");
}

}  // namespace veldrin
