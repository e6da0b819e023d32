// Files that come to the disk together: all of them whole, or none.
#pragma once

#include <string>
#include <vector>

namespace veldrin {

struct WrittenFile {
  std::string path;
  std::string bytes;
};

/// Writes each to a neighbour and then puts them in their places. Throws BadInput, with nothing left behind,
/// for a file that exists already or cannot be written.
void WriteFiles(const std::vector<WrittenFile>& files);

}  // namespace veldrin
