#include "plan/present/combination_file.h"

#include "model/limits.h"
#include "plan/check/field_scanner.h"
#include "plan/check/list_remarks.h"
#include "plan/files/bad_input.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace veldrin {

namespace {

constexpr int kThird = 3;
/// What the setting holds in a new installation: the machines whose 3rd and 4th gear have parts of their own.
constexpr char kSeparateMachines[] = "nv0";

bool OnlyBlankLinesLeft(FieldScanner scanner) {
  while (!scanner.AtEnd()) {
    if (!Trim(scanner.RestOfLine()).empty()) return false;
  }
  return true;
}

}  // namespace

bool HasSeparateParts(const std::string& machineKey) {
  return ContainsIgnoringCase(kSeparateMachines, machineKey);
}

CombinationFile ReadCombinationFile(const std::string& path, const std::string& text, bool separate) {
  CombinationFile file;
  FieldScanner scanner(text);
  const auto field = [&](int line) {
    if (scanner.AtEnd()) RefuseLine(path, line, "the record is cut short");
    return scanner.Field().text;
  };
  while (!OnlyBlankLinesLeft(scanner)) {
    const ScannedField first = scanner.Field();
    int gear = 0;
    Guarded([&] { gear = ParseInt16(first.text); });
    if (gear < 1 || gear > kGears) {
      RefuseLine(path, first.line, Quoted(first.text) + " is no gear, 1 to " + std::to_string(kGears));
    }
    const std::string pair = field(first.line);
    if (gear == kThird && !separate) {
      field(first.line);  // the number of the other gear, which nothing rests on
      const std::string fourth = field(first.line);
      JointParts& parts = file.joint[{pair, fourth}];
      parts.main = field(first.line);
      parts.counterOfThird = field(first.line);
      parts.counterOfFourth = field(first.line);
    } else {
      ShaftParts& parts = file.single[{gear, pair}];
      parts.main = field(first.line);
      parts.counter = field(first.line);
    }
  }
  return file;
}

}  // namespace veldrin
