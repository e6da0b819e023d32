// All texts in quotation marks that stand in the program's sources, comments left out.
#pragma once

#include "tests/guide/guide_text.h"

#include <filesystem>

namespace veldrin {

/// The literals of one source, as they stand between their quotation marks.
inline std::vector<std::string> LiteralsIn(const std::string& source) {
  std::vector<std::string> found;
  for (std::size_t at = 0; at < source.size(); ++at) {
    if (source.compare(at, 2, "//") == 0) {
      at = source.find('\n', at);
      if (at == std::string::npos) break;
    } else if (source.compare(at, 3, "'\"'") == 0 || source.compare(at, 3, "'\\'") == 0) {
      at += 2;
    } else if (source[at] == '"') {
      const std::size_t begin = at + 1;
      for (at = begin; at < source.size() && source[at] != '"'; ++at) at += source[at] == '\\' ? 1 : 0;
      found.push_back(source.substr(begin, at - begin));
    }
  }
  return found;
}

/// Those of src/, without blanks.
inline std::set<std::string> SourceLiterals() {
  std::set<std::string> all;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(std::string(VELDRIN_ROOT) + "/src")) {
    if (!entry.is_regular_file()) continue;
    for (const std::string& literal : LiteralsIn(FileText(entry.path().string())))
      all.insert(WithoutBlanks(literal));
  }
  return all;
}

}  // namespace veldrin
