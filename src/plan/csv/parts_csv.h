// A machine as a table of parts, one a line, for spreadsheets. docs/file-formats.md tells the columns.
#pragma once

#include "model/workspace.h"
#include "plan/present/combination_file.h"

#include <string>

namespace veldrin {

/// What a list file and its combination file say: of `machine` the tables that a list fills, in the list's
/// order and without the final table, and the running conditions that it sets.
struct PartsTable {
  Workspace machine;
  CombinationFile combination;

  bool HasParts() const { return !combination.single.empty() || !combination.joint.empty(); }
};

/// The table of a list's text, which has no fault. The combination file comes with it.
PartsTable PartsOfList(const std::string& listText, const CombinationFile& combination);

/// The table as CSV.
std::string PartsCsv(const PartsTable& parts);

/// The table that a CSV file holds. Throws BadInput, with the line, for what is no part.
PartsTable ReadPartsCsv(const std::string& path, const std::string& text);

}  // namespace veldrin
