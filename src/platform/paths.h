// All cutting and joining of paths, by the machine's own rules.
#pragma once

#include "platform/files.h"

#include <string>

namespace veldrin {

/// `folder`, a separator, `name`. A drive root must come as TrimRoot gives it, or two separators would meet.
std::string JoinPath(const PathRules& rules, const std::string& folder, const std::string& name);

/// A folder as the rules join to it: one that ends in a separator is cut to the root's own characters ("C:\"
/// to "C:", "/" to nothing), any other stays whole.
/// Kept: a longer path with a separator at its end is cut to the drive as well.
std::string TrimRoot(const PathRules& rules, const std::string& folder);

/// The folder that TrimRoot gave, as boxes go to it: a root has its separator again.
std::string WithRoot(const PathRules& rules, const std::string& folder);

/// What stands before the last separator; empty when there is none.
std::string FolderOf(const PathRules& rules, const std::string& path);

/// What stands behind the last separator; the whole text when there is none. Of a folder it is the last
/// folder's name.
std::string LastPartOf(const PathRules& rules, const std::string& path);

/// Whether a folder is a root, such as "C:\" or "/".
bool IsRoot(const PathRules& rules, const std::string& folder);

/// The folder around a folder that is no root; a root keeps its separator.
std::string ParentFolder(const PathRules& rules, const std::string& folder);

/// A folder as the settings keep it: in capitals, save where its capitals could name another one.
std::string StoredFolder(const PathRules& rules, const std::string& folder);

}  // namespace veldrin
