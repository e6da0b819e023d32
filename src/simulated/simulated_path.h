// Paths by the Windows rules, as texts alone: cut into drive and parts, refused where a character stands in
// the wrong place. What lies on the drives is simulated_disk.h's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

/// A path in its parts, as it was written.
struct SimulatedPath {
  /// 'A' to 'Z'; 0 when the path names no drive.
  char drive = 0;
  /// Whether it begins at the drive's root.
  bool rooted = false;
  /// Folders and the name behind them, without separators; "." is left out, ".." is still there.
  std::vector<std::string> parts;
};

/// A path whose last part may be a pattern, cut before that part.
struct SimulatedPattern {
  /// With its separator or colon; empty for the current folder.
  std::string folder;
  std::string name;
};

/// Cuts a path at backslashes and slashes. Blanks and dots at the end of a part do not count. Raises fault 52
/// for the empty path, for one of <>|":*? in a part, for a control character, for a name of blanks and dots
/// alone and for a name on the network.
SimulatedPath CutPath(std::string_view path);

/// Cuts off the last part, which may hold "*" and "?". Raises fault 52 for any other bad character in it.
SimulatedPattern CutPattern(std::string_view pattern);

/// Whether "*" or "?" stands in `name`.
bool HasWildcard(std::string_view name);

/// Whether the path begins with a drive letter and a colon.
bool HasDrive(std::string_view path);

}  // namespace veldrin
