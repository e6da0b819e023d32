// What stands on the disk, by paths of any length and with names of any characters.
//
// Windows opens a path of more than 260 characters only in a form of its own, which the compiler's library
// does not know. So whoever asks for files and folders does it here; bytes are read and written by
// std::fstream on OpenablePath. Elsewhere all this is std::filesystem itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace veldrin {

/// A path from a text of the program and back: UTF-8 on Windows, elsewhere the bytes as they are.
std::filesystem::path PathOfText(const std::string& text);
std::string TextOfPath(const std::filesystem::path& path);

/// The path from its root on: behind the current folder where it had none.
std::filesystem::path WholeOnDisk(const std::filesystem::path& path, std::error_code& failure);

/// The path as the system opens it, whatever its length. Only for calls of the system: it is not for people,
/// and nothing may be joined to it.
std::filesystem::path OpenablePath(const std::filesystem::path& path);

/// What a path leads to, its links followed. Of the rights only whether its owner may write it is told
/// everywhere.
std::filesystem::file_status StatusOnDisk(const std::filesystem::path& path, std::error_code& failure);
bool IsFolderOnDisk(const std::filesystem::path& path);

/// Bytes of a file.
std::uintmax_t SizeOnDisk(const std::filesystem::path& path, std::error_code& failure);

struct FolderEntry {
  std::filesystem::path name;
  bool isFolder = false;
  /// Lists leave it out: a hidden or system file on Windows, a name with a dot in front elsewhere.
  bool isHidden = false;
};

/// Begins to list a folder, for whoever wants to know only whether that fails.
void CheckFolderOnDisk(const std::filesystem::path& folder, std::error_code& failure);
/// All that a folder holds, in no order; what was found before a failure.
std::vector<FolderEntry> EntriesOnDisk(const std::filesystem::path& folder, std::error_code& failure);

/// Takes a file or an empty folder away.
void RemoveOnDisk(const std::filesystem::path& path, std::error_code& failure);
/// Gives a file another path, in place of what may stand there.
void RenameOnDisk(const std::filesystem::path& from, const std::filesystem::path& to,
                  std::error_code& failure);
/// Makes one folder; one that is there already is no failure.
void MakeFolderOnDisk(const std::filesystem::path& folder, std::error_code& failure);

}  // namespace veldrin
