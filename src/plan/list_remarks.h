// What a strict reading of a list file has to say, by lines.
#pragma once

#include "plan/field_scanner.h"

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

  /// The field as a whole 16-bit number; nothing, and a fault, when it is none.
  std::optional<int> WholeNumber(const ScannedField& field);
  /// The same for teeth, of which there is at least one.
  std::optional<int> Teeth(const ScannedField& field);
  /// Faults of the quotation marks of a field.
  void CheckQuotes(const ScannedField& field);

  int Faults() const { return faults_; }
  /// All remarks in the order of their lines.
  std::vector<ListRemark> InOrder() const;
  /// Takes over what another collection holds.
  void Append(const ListRemarks& others);

 private:
  std::vector<ListRemark> remarks_;
  int faults_ = 0;
};

/// A text in quotation marks, shortened when it is long; characters that do not print become "?".
std::string Quoted(const std::string& text);

}  // namespace veldrin
