// Folders that outlast a crash with what was put into them.
#pragma once

#include <filesystem>

namespace veldrin {

/// Makes a folder that may be missing, with those above it, and waits until their names are on the disk.
/// Raises fault 70 where that is denied, 61 where there is no room, 75 where something else has the name.
void MakeFolder(const std::filesystem::path& folder);

/// Lets the names that were just given in a folder outlast a crash. A folder that cannot be read, and a disk
/// that knows no such order, are passed over.
void KeepNames(const std::filesystem::path& folder);

}  // namespace veldrin
