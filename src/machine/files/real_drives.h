// What a drive box offers: drive letters on Windows; elsewhere the root, the user's home folder and the
// volumes that are mounted for people.
#pragma once

#include <string>
#include <vector>

namespace veldrin {

/// Letters with their colon, such as "C:", or folders, such as "/", in the order in which they are offered.
std::vector<std::string> SystemDrives();

/// The one of `drives` that a whole path lies on, the innermost; empty for none of them.
std::string DriveAround(const std::vector<std::string>& drives, const std::string& path);

/// Raises fault 68 when the whole path is on a drive that is not there and 71 when the drive is not ready.
/// Only drive letters can be so.
void CheckDrive(const std::string& path);

}  // namespace veldrin
