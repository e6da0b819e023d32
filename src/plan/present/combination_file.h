// The combination file of a machine: which parts of main and counter shaft a gear pair takes. A lookup table,
// read whole; of records that say the same the last counts.
#pragma once

#include <map>
#include <string>
#include <utility>

namespace veldrin {

struct ShaftParts {
  std::string main;
  std::string counter;

  friend bool operator==(const ShaftParts&, const ShaftParts&) = default;
};

/// The parts of 3rd and 4th gear where one part of the main shaft serves both.
struct JointParts {
  std::string main;
  std::string counterOfThird;
  std::string counterOfFourth;
};

struct CombinationFile {
  /// By gear and the text of its pair.
  std::map<std::pair<int, std::string>, ShaftParts> single;
  /// By the texts of the pairs of 3rd and 4th gear; empty where each has a main-shaft part of its own.
  std::map<std::pair<std::string, std::string>, JointParts> joint;
};

/// Whether 3rd and 4th gear of the machine have parts of their own, as the windows are set to when installed.
bool HasSeparateParts(const std::string& machineKey);

/// The records of the text. Throws BadInput for a record that is cut short or of no gear.
CombinationFile ReadCombinationFile(const std::string& path, const std::string& text, bool separate);

}  // namespace veldrin
