#include "machine/files/real_drives.h"

#include "runtime/fault.h"
#include "runtime/text.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>

namespace veldrin {

#ifdef _WIN32

std::vector<std::string> SystemDrives() {
  std::vector<std::string> drives;
  for (const QFileInfo& drive : QDir::drives())
    drives.push_back(drive.path().left(2).toUpper().toStdString());
  return drives;
}

std::string DriveAround(const std::vector<std::string>& drives, const std::string& path) {
  const std::string letter = UpperCase(path.substr(0, 2));
  return std::find(drives.begin(), drives.end(), letter) == drives.end() ? "" : letter;
}

void CheckDrive(const std::string& path) {
  if (path.size() < 2 || path[1] != ':') return;
  const std::string letter = DriveAround(SystemDrives(), path);
  if (letter.empty()) Raise(kFaultDeviceUnavailable);
  if (!QStorageInfo(QString::fromStdString(letter + "/")).isReady()) Raise(kFaultDriveNotReady);
}

#else

namespace {

/// Where systems mount what people plug in or connect to.
constexpr const char* kVolumeFolders[] = {"/media/", "/run/media/", "/mnt/", "/Volumes/"};

/// Whether the volume is one that people put files on, and not one of the system's own making.
bool IsForPeople(const QStorageInfo& volume) {
  if (!volume.isValid() || !volume.isReady() || volume.bytesTotal() <= 0) return false;
  const QString root = volume.rootPath();
  const bool placed = std::any_of(std::begin(kVolumeFolders), std::end(kVolumeFolders),
                                  [&](const char* folder) { return root.startsWith(QLatin1String(folder)); });
  if (!placed || !QFileInfo(root).isExecutable()) return false;
  const QByteArray type = volume.fileSystemType();
  return type != "tmpfs" && type != "squashfs" && type != "overlay" && type != "proc" && type != "sysfs";
}

bool LiesIn(const std::string& path, const std::string& folder) {
  if (!path.starts_with(folder)) return false;
  return folder.ends_with('/') || path.size() == folder.size() || path[folder.size()] == '/';
}

}  // namespace

std::vector<std::string> SystemDrives() {
  std::vector<std::string> drives{"/"};
  const auto add = [&](const QString& folder) {
    const std::string drive = QDir::cleanPath(folder).toStdString();
    if (std::find(drives.begin(), drives.end(), drive) == drives.end()) drives.push_back(drive);
  };
  if (QFileInfo(QDir::homePath()).isDir()) add(QDir::homePath());
  std::vector<QString> volumes;
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    if (IsForPeople(volume)) volumes.push_back(volume.rootPath());
  }
  std::sort(volumes.begin(), volumes.end());
  for (const QString& volume : volumes) add(volume);
  return drives;
}

std::string DriveAround(const std::vector<std::string>& drives, const std::string& path) {
  std::string innermost;
  for (const std::string& drive : drives) {
    if (LiesIn(path, drive) && drive.size() > innermost.size()) innermost = drive;
  }
  return innermost;
}

void CheckDrive(const std::string& /*path*/) {}

#endif

}  // namespace veldrin
