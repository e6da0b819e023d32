#include "machine/files/real_files.h"

#include "machine/files/real_drives.h"
#include "machine/files/real_fault.h"
#include "machine/files/real_path.h"
#include "machine/files/real_writer.h"
#include "platform/disk.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <utility>

namespace veldrin {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kWildcards = "*?";
constexpr std::uintmax_t kLargestText = 256U << 20;  // bytes; far beyond any list or plan

bool HasWildcard(std::string_view name) {
  return name.find_first_of(kWildcards) != std::string_view::npos;
}

/// The fault of a reading that has just failed, by what the system told of it.
int ReadFault() {
  return FaultFor({errno, std::generic_category()}, FileTask::Read);
}

/// The place of a file that is there. Raises 53, 70, 75 and 76.
fs::path FileAt(const std::string& text) {
  fs::path path = PathOnDisk(text);
  CheckDrive(TextOfPath(path));
  std::error_code failure;
  const fs::file_status status = StatusOnDisk(path, failure);
  if (status.type() == fs::file_type::none) Raise(FaultFor(failure, FileTask::Read));
  if (!fs::exists(status)) {
    Raise(IsFolderOnDisk(path.parent_path()) ? kFaultFileNotFound : kFaultPathNotFound);
  }
  if (!fs::is_regular_file(status)) Raise(kFaultPathAccess);
  return path;
}

/// The place of a folder that can be listed. Raises 68, 70, 71, 75 and 76.
fs::path FolderAt(const std::string& text) {
  fs::path path = PathOnDisk(text);
  CheckDrive(TextOfPath(path));
  std::error_code failure;
  const fs::file_status status = StatusOnDisk(path, failure);
  if (status.type() == fs::file_type::none) Raise(FaultFor(failure, FileTask::UseFolder));
  if (!fs::is_directory(status)) Raise(kFaultPathNotFound);
  CheckFolderOnDisk(path, failure);
  if (failure) Raise(FaultFor(failure, FileTask::UseFolder));
  return path;
}

/// The place of a file to be written.
fs::path TargetAt(const std::string& text) {
  fs::path path = PathOnDisk(text);
  if (HasWildcard(TextOfPath(path.filename()))) Raise(kFaultBadFileName);
  CheckDrive(TextOfPath(path));
  return path;
}

fs::file_type TypeOf(const std::string& text) {
  fs::file_type type = fs::file_type::none;
  Guarded([&] {
    std::error_code failure;
    type = StatusOnDisk(PathOnDisk(text), failure).type();
  });
  return type;
}

std::vector<std::string> SplitPatterns(const std::string& patterns) {
  std::vector<std::string> split;
  for (std::size_t at = 0; at <= patterns.size();) {
    const std::size_t end = std::min(patterns.find(';', at), patterns.size());
    const std::string pattern = Trim(patterns.substr(at, end - at));
    if (!pattern.empty()) split.push_back(pattern);
    at = end + 1;
  }
  return split;
}

/// Names of what a folder shows and `wanted` takes, in their order.
template <class Wanted>
std::vector<std::string> NamesIn(const fs::path& folder, Wanted wanted) {
  std::vector<std::pair<std::string, std::string>> found;
  std::error_code failure;
  for (const FolderEntry& entry : EntriesOnDisk(folder, failure)) {
    const std::string name = TextOfPath(entry.name);
    if (!entry.isHidden && wanted(entry, name)) found.emplace_back(LowerCase(name), name);
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> names;
  names.reserve(found.size());
  for (auto& [key, name] : found) names.push_back(std::move(name));
  return names;
}

}  // namespace

RealFiles::RealFiles(CodePages pages) : encoding_(std::make_shared<TextEncoding>(std::move(pages))) {}

PathRules RealFiles::Rules() const {
#ifdef _WIN32
  return {'\\', 2, false};
#else
  return {'/', 0, true};
#endif
}

std::string RealFiles::ReadText(const std::string& path) {
  const fs::path place = FileAt(path);
  std::error_code failure;
  const std::uintmax_t size = SizeOnDisk(place, failure);
  if (failure) Raise(FaultFor(failure, FileTask::Read));
  if (size > kLargestText) Raise(kFaultPathAccess);
  errno = 0;
  std::ifstream file(OpenablePath(place), std::ios::binary);
  if (!file) Raise(ReadFault());
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) Raise(ReadFault());
  return encoding_->Decode(TextOfPath(place), bytes);
}

std::unique_ptr<FileWriter> RealFiles::OpenForWriting(const std::string& path) {
  return std::make_unique<RealWriter>(encoding_, TargetAt(path));
}

void RealFiles::WriteBytes(const std::string& path, std::string_view bytes) {
  ReplacingFile file(TargetAt(path));
  file.Append(bytes);
  file.Commit();
}

void RealFiles::Delete(const std::string& path) {
  const fs::path place = FileAt(path);
  std::error_code failure;
  const fs::perms permissions = StatusOnDisk(place, failure).permissions();
  if ((permissions & fs::perms::owner_write) == fs::perms::none) Raise(kFaultPermissionDenied);
  RemoveOnDisk(place, failure);
  if (failure) Raise(FaultFor(failure, FileTask::Write));
}

void RealFiles::Respell(const std::string& path) {
  const fs::path place = FileAt(path);
  const fs::path wanted = place.parent_path() / NativePath(path).filename();
  if (place == wanted) return;
  std::error_code failure;
  RenameOnDisk(place, wanted, failure);
  if (failure) Raise(FaultFor(failure, FileTask::Write));
}

std::int64_t RealFiles::Size(const std::string& path) {
  std::error_code failure;
  const std::uintmax_t size = SizeOnDisk(FileAt(path), failure);
  if (failure) Raise(FaultFor(failure, FileTask::Read));
  return static_cast<std::int64_t>(size);
}

bool RealFiles::FileExists(const std::string& path) const {
  const fs::file_type type = TypeOf(path);
  return type != fs::file_type::none && type != fs::file_type::not_found && type != fs::file_type::directory;
}

bool RealFiles::FolderExists(const std::string& path) const {
  return TypeOf(path) == fs::file_type::directory;
}

std::string RealFiles::FindFirst(const std::string& pattern) const {
  const std::size_t separator = pattern.rfind(Rules().separator);
  const std::size_t at = separator == std::string::npos ? 0 : separator + 1;
  const std::string name = pattern.substr(at);
  if (!name.empty() && !HasWildcard(name)) return FileExists(pattern) ? LongName(pattern) : "";
  std::vector<std::string> names;
  Guarded([&] { names = FileNames(at == 0 ? "." : pattern.substr(0, at), name.empty() ? "*" : name); });
  return names.empty() ? "" : names.front();
}

std::string RealFiles::LongName(const std::string& path) const {
  std::string name;
  Guarded([&] {
    const fs::path place = PathOnDisk(path);
    std::error_code failure;
    if (!fs::exists(StatusOnDisk(place, failure))) return;
    // A system that tells no case of letters takes the name as it came, but lists it as it was made.
    name = TextOfPath(ListedName(place.parent_path(), place.filename()).value_or(place.filename()));
  });
  return name;
}

std::vector<std::string> RealFiles::FileNames(const std::string& folder, const std::string& pattern) const {
  const std::vector<std::string> patterns = SplitPatterns(pattern);
  return NamesIn(FolderAt(folder), [&](const FolderEntry& entry, const std::string& name) {
    return !entry.isFolder && std::any_of(patterns.begin(), patterns.end(),
                                          [&](const std::string& one) { return MatchesPattern(name, one); });
  });
}

std::vector<std::string> RealFiles::FolderNames(const std::string& folder) const {
  return NamesIn(FolderAt(folder),
                 [](const FolderEntry& entry, const std::string& /*name*/) { return entry.isFolder; });
}

std::string RealFiles::ResolveFolder(const std::string& path) const {
  return TextOfPath(FolderAt(path));
}

std::vector<std::string> RealFiles::Drives() const {
  return SystemDrives();
}

std::string RealFiles::DriveOf(const std::string& path) const {
  std::string drive;
  Guarded([&] { drive = DriveAround(SystemDrives(), TextOfPath(PathOnDisk(path))); });
  return drive;
}

std::string RealFiles::CurrentFolder() const {
  std::error_code failure;
  const fs::path folder = fs::current_path(failure);
  // A folder that is gone is nobody's.
  return failure ? TextOfPath(fs::path(std::string(1, '/')).make_preferred()) : TextOfPath(folder);
}

void RealFiles::SetCurrentFolder(const std::string& path) {
  std::error_code failure;
  fs::current_path(FolderAt(path), failure);
  if (failure) Raise(FaultFor(failure, FileTask::UseFolder));
}

}  // namespace veldrin
