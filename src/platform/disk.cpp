#include "platform/disk.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace veldrin {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

/// Longer ones the old calls refuse; those that make folders want room for a short name behind.
constexpr std::size_t kLongestPlain = MAX_PATH - 13;

std::error_code LastFailure() {
  return {static_cast<int>(GetLastError()), std::system_category()};
}

void Tell(bool done, std::error_code& failure) {
  failure = done ? std::error_code() : LastFailure();
}

bool IsMissing(const std::error_code& failure) {
  return failure.value() == ERROR_FILE_NOT_FOUND || failure.value() == ERROR_PATH_NOT_FOUND;
}

/// Begins to list a folder; INVALID_HANDLE_VALUE where it cannot be listed, or holds nothing.
HANDLE FirstIn(const fs::path& folder, WIN32_FIND_DATAW& found, std::error_code& failure) {
  // The star belongs to what may be too long.
  const HANDLE search = FindFirstFileW(OpenablePath(folder / L"*").c_str(), &found);
  Tell(search != INVALID_HANDLE_VALUE, failure);
  // A drive's root without anything in it lists not even itself.
  if (failure.value() == ERROR_FILE_NOT_FOUND && IsFolderOnDisk(folder)) failure.clear();
  return search;
}

}  // namespace

fs::path PathOfText(const std::string& text) {
  return std::u8string(text.begin(), text.end());
}

std::string TextOfPath(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

fs::path WholeOnDisk(const fs::path& path, std::error_code& failure) {
  // The library's own takes the name of a machine in the network for a folder.
  std::wstring whole;
  DWORD size = MAX_PATH;
  while (size > whole.size()) {
    whole.resize(size);
    size = GetFullPathNameW(path.c_str(), size, whole.data(), nullptr);
  }
  Tell(size != 0, failure);
  whole.resize(size);
  return whole;
}

fs::path OpenablePath(const fs::path& path) {
  std::error_code failure;
  const std::wstring text = WholeOnDisk(path, failure).wstring();
  const bool openable = text.starts_with(L"\\\\?\\") || text.starts_with(L"\\\\.\\");
  if (failure || text.size() <= kLongestPlain || openable) return path;
  return text.starts_with(L"\\\\") ? L"\\\\?\\UNC" + text.substr(1) : L"\\\\?\\" + text;
}

fs::file_status StatusOnDisk(const fs::path& path, std::error_code& failure) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  Tell(GetFileAttributesExW(OpenablePath(path).c_str(), GetFileExInfoStandard, &data) != FALSE, failure);
  if (failure) return fs::file_status(IsMissing(failure) ? fs::file_type::not_found : fs::file_type::none);
  const bool isFolder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  // Of a folder the mark means something else.
  const bool readOnly = !isFolder && (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
  return fs::file_status(isFolder ? fs::file_type::directory : fs::file_type::regular,
                         readOnly ? fs::perms::owner_read : fs::perms::owner_read | fs::perms::owner_write);
}

std::uintmax_t SizeOnDisk(const fs::path& path, std::error_code& failure) {
  constexpr DWORD kAnybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = CreateFileW(OpenablePath(path).c_str(), FILE_READ_ATTRIBUTES, kAnybody, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    failure = LastFailure();
    return 0;
  }
  LARGE_INTEGER size = {};
  Tell(GetFileSizeEx(file, &size) != FALSE, failure);
  CloseHandle(file);
  return static_cast<std::uintmax_t>(size.QuadPart);
}

void CheckFolderOnDisk(const fs::path& folder, std::error_code& failure) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FirstIn(folder, found, failure);
  if (search != INVALID_HANDLE_VALUE) FindClose(search);
}

std::vector<FolderEntry> EntriesOnDisk(const fs::path& folder, std::error_code& failure) {
  std::vector<FolderEntry> entries;
  WIN32_FIND_DATAW found;
  const HANDLE search = FirstIn(folder, found, failure);
  if (search == INVALID_HANDLE_VALUE) return entries;
  do {
    const fs::path name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    const DWORD attributes = found.dwFileAttributes;
    entries.push_back({name, (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                       (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0});
  } while (FindNextFileW(search, &found) != FALSE);
  Tell(GetLastError() == ERROR_NO_MORE_FILES, failure);
  FindClose(search);
  return entries;
}

void RemoveOnDisk(const fs::path& path, std::error_code& failure) {
  const fs::path place = OpenablePath(path);
  const bool isFolder = IsFolderOnDisk(path);
  Tell((isFolder ? RemoveDirectoryW(place.c_str()) : DeleteFileW(place.c_str())) != FALSE, failure);
}

void RenameOnDisk(const fs::path& from, const fs::path& to, std::error_code& failure) {
  const DWORD how = MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED;
  Tell(MoveFileExW(OpenablePath(from).c_str(), OpenablePath(to).c_str(), how) != FALSE, failure);
}

void MakeFolderOnDisk(const fs::path& folder, std::error_code& failure) {
  Tell(CreateDirectoryW(OpenablePath(folder).c_str(), nullptr) != FALSE, failure);
  if (failure && IsFolderOnDisk(folder)) failure.clear();
}

#else

fs::path PathOfText(const std::string& text) {
  return text;
}

std::string TextOfPath(const fs::path& path) {
  return path.string();
}

fs::path WholeOnDisk(const fs::path& path, std::error_code& failure) {
  return fs::absolute(path, failure);
}

fs::path OpenablePath(const fs::path& path) {
  return path;
}

fs::file_status StatusOnDisk(const fs::path& path, std::error_code& failure) {
  return fs::status(path, failure);
}

std::uintmax_t SizeOnDisk(const fs::path& path, std::error_code& failure) {
  return fs::file_size(path, failure);
}

void CheckFolderOnDisk(const fs::path& folder, std::error_code& failure) {
  fs::directory_iterator(folder, failure);
}

std::vector<FolderEntry> EntriesOnDisk(const fs::path& folder, std::error_code& failure) {
  std::vector<FolderEntry> entries;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    const fs::path name = entry->path().filename();
    std::error_code ignored;
    entries.push_back({name, entry->is_directory(ignored), name.string().starts_with('.')});
  }
  return entries;
}

void RemoveOnDisk(const fs::path& path, std::error_code& failure) {
  fs::remove(path, failure);
}

void RenameOnDisk(const fs::path& from, const fs::path& to, std::error_code& failure) {
  fs::rename(from, to, failure);
}

void MakeFolderOnDisk(const fs::path& folder, std::error_code& failure) {
  fs::create_directory(folder, failure);
}

#endif

bool IsFolderOnDisk(const fs::path& path) {
  std::error_code failure;
  return fs::is_directory(StatusOnDisk(path, failure));
}

}  // namespace veldrin
