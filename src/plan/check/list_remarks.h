// What a strict reading of a list file has to say, by lines.
//
// A fault is what makes the list useless: the program refuses it, or a number that counts is not the list's.
// A warning is what the program ignores, takes in its own way, or will do badly with.
#pragma once

#include "plan/check/field_scanner.h"

#include <optional>
#include <string>
#include <vector>

namespace veldrin {

struct ListRemark {
  int line = 0;          // from 1
  bool warning = false;  // the list can be used all the same
  std::string text;
};

class ListRemarks {
 public:
  void Fault(int line, std::string text);
  void Warn(int line, std::string text);

  /// The field as the program reads it, a 16-bit number; nothing, and a fault, when it is none. Warns of what
  /// rounding takes away.
  std::optional<int> WholeNumber(const ScannedField& field);
  /// The same for teeth, of which there is at least one.
  std::optional<int> Teeth(const ScannedField& field);
  /// A number that nothing rests on: warns where it is none.
  void UnusedNumber(const ScannedField& field);
  /// A text's quotation marks: a fault where the second is missing, for the text then swallows the file.
  void CheckQuotes(const ScannedField& field);

  int Faults() const { return faults_; }
  /// All remarks in the order of their lines.
  std::vector<ListRemark> InOrder() const;
  /// Takes over what another collection holds.
  void Append(const ListRemarks& others);

 private:
  void WarnOfQuotes(const ScannedField& field);

  std::vector<ListRemark> remarks_;
  int faults_ = 0;
};

/// Whether the program reads the field as the end mark of a list.
bool IsEndMark(const ScannedField& field);

/// Whether the text spells a number, of whatever size.
bool IsNumber(const std::string& text);

/// A text in quotation marks, shortened when it is long; characters that do not print become "?".
std::string Quoted(const std::string& text);

}  // namespace veldrin
