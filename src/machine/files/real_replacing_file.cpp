#include "machine/files/real_replacing_file.h"

#include "machine/files/real_fault.h"
#include "machine/files/real_made_folder.h"
#include "machine/files/real_path.h"
#include "platform/disk.h"
#include "runtime/fault.h"

#include <cerrno>
#include <random>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <QFileInfo>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace veldrin {

namespace fs = std::filesystem;

namespace {

bool DeniesWriting(const fs::path& path) {
#ifdef _WIN32
  return !QFileInfo(PathString(path)).isWritable();
#else
  return access(path.c_str(), W_OK) != 0;
#endif
}

bool IsReadOnly(const fs::path& path, fs::perms permissions) {
  // The system lets its administrator write everything; the file's owner meant otherwise.
  return (permissions & fs::perms::owner_write) == fs::perms::none || DeniesWriting(path);
}

void CheckTarget(const fs::path& path) {
  std::error_code failure;
  const fs::file_status folder = StatusOnDisk(path.parent_path(), failure);
  if (folder.type() == fs::file_type::none) Raise(FaultFor(failure, FileTask::Write));
  if (!fs::is_directory(folder)) Raise(kFaultPathNotFound);
  const fs::file_status file = StatusOnDisk(path, failure);
  if (file.type() == fs::file_type::none) Raise(FaultFor(failure, FileTask::Write));
  if (!fs::exists(file)) return;
  if (!fs::is_regular_file(file)) Raise(kFaultPathAccess);
  if (IsReadOnly(path, file.permissions())) Raise(kFaultPermissionDenied);
}

}  // namespace

#ifdef _WIN32

ReplacingFile::ReplacingFile(const fs::path& path) : file_(PathString(path)) {
  CheckTarget(path);
  if (file_.open(QIODevice::WriteOnly)) return;
  Raise(DeniesWriting(path.parent_path()) ? kFaultPermissionDenied : kFaultPathAccess);
}

ReplacingFile::~ReplacingFile() = default;

void ReplacingFile::Append(std::string_view bytes) {
  const auto size = static_cast<qint64>(bytes.size());
  if (!failed_ && file_.write(bytes.data(), size) == size && file_.flush()) return;
  failed_ = true;
  Raise(kFaultDiskFull);
}

void ReplacingFile::StartOver() {
  failed_ = failed_ || !file_.seek(0) || !file_.resize(0);
}

void ReplacingFile::Commit() {
  if (failed_) file_.cancelWriting();
  const QFileInfo target(file_.fileName());
  if (file_.commit()) return;
  if (failed_ || file_.error() == QFileDevice::WriteError || file_.error() == QFileDevice::ResourceError) {
    Raise(kFaultDiskFull);
  }
  const QFileInfo folder(target.path());
  Raise(folder.isDir() && !folder.isWritable() ? kFaultPermissionDenied : kFaultPathAccess);
}

#else

namespace {

constexpr int kMostLinks = 40;
constexpr int kMostTries = 100;
constexpr mode_t kRights = 0777;
constexpr mode_t kOwnersAlone = 0600;
constexpr mode_t kByTheUsersMask = 0666;

int LastFault() {
  return FaultFor({errno, std::generic_category()}, FileTask::Write);
}

/// What a link leads to at its end, be it there or not.
fs::path BehindLinks(fs::path path) {
  std::error_code failure;
  for (int links = 0; links < kMostLinks && fs::is_symlink(fs::symlink_status(path, failure)); ++links) {
    const fs::path next = fs::read_symlink(path, failure);
    if (failure) break;
    path = path.parent_path() / next;
  }
  return path;
}

/// A name that lists leave out. It does not grow with the file's own, which may be as long as names can be.
std::string NeighbourName() {
  constexpr std::string_view kCharacters = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::random_device chance;
  std::uniform_int_distribution<std::size_t> any(0, kCharacters.size() - 1);
  std::string name = ".veldrin-";
  for (int i = 0; i < 8; ++i) name += kCharacters[any(chance)];
  return name;
}

/// Makes a file that nobody else has beside `target` and tells its path.
int OpenNeighbour(const fs::path& target, mode_t mode, fs::path& neighbour) {
  for (int i = 0; i < kMostTries; ++i) {
    neighbour = target.parent_path() / NeighbourName();
    const int file = open(neighbour.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file >= 0) return file;
    if (errno != EEXIST) break;
  }
  neighbour.clear();
  Raise(LastFault());
}

/// A system that keeps files of others or their rights from being made does so without a fault.
void TakeRights(int file, const struct stat& old) {
  if (fchown(file, old.st_uid, old.st_gid) != 0) {
    if (fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) errno = 0;
  }
  if (fchmod(file, old.st_mode & kRights) != 0) errno = 0;
}

int WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return LastFault();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

/// Waits until a file's bytes are on the disk. File systems that know no such order have them there somehow.
int PutOnDisk(int file) {
  int result = 0;
  do {
    result = fsync(file);
  } while (result != 0 && errno == EINTR);
  if (result == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS) return 0;
  return LastFault();
}

/// Some file systems tell only here that there was no room.
int CloseFile(int& file) {
  const int closed = close(file);
  file = -1;
  return closed == 0 || errno == EINTR ? 0 : LastFault();
}

}  // namespace

ReplacingFile::ReplacingFile(const fs::path& path) : target_(BehindLinks(path)) {
  CheckTarget(target_);
  struct stat old = {};
  const bool replaces = stat(target_.c_str(), &old) == 0;
  // Until it has the old file's rights, nobody else reads it.
  file_ = OpenNeighbour(target_, replaces ? kOwnersAlone : kByTheUsersMask, neighbour_);
  if (replaces) TakeRights(file_, old);
}

ReplacingFile::~ReplacingFile() {
  if (file_ >= 0) close(file_);
  if (!neighbour_.empty()) unlink(neighbour_.c_str());
}

void ReplacingFile::Append(std::string_view bytes) {
  if (fault_ == 0) Keep(WriteAll(file_, bytes));
  if (fault_ != 0) Raise(fault_);
}

void ReplacingFile::StartOver() {
  if (fault_ == 0 && (lseek(file_, 0, SEEK_SET) != 0 || ftruncate(file_, 0) != 0)) Keep(LastFault());
}

void ReplacingFile::Commit() {
  if (fault_ == 0) Keep(PutOnDisk(file_));
  if (fault_ == 0) Keep(CloseFile(file_));
  if (fault_ == 0 && rename(neighbour_.c_str(), target_.c_str()) != 0) Keep(LastFault());
  if (fault_ != 0) Raise(fault_);
  neighbour_.clear();
  // Without it the old file would be back after a crash, as whole as the new one: no reason to fail.
  KeepNames(target_.parent_path());
}

void ReplacingFile::Keep(int fault) {
  if (fault_ == 0) fault_ = fault;
}

#endif

}  // namespace veldrin
