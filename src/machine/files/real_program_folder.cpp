#include "machine/files/real_program_folder.h"

#include "machine/files/real_path.h"
#include "machine/files/share_folders.h"
#include "platform/disk.h"
#include "runtime/fault.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace veldrin {

namespace fs = std::filesystem;

namespace {

constexpr char kListFolder[] = "LIST";
constexpr char kPlanFolder[] = "DAT";

/// Copies a file that is not there yet; the copy may be written, whatever the installed one allows.
void CopyFile(const QString& from, const QString& to) {
  if (QFile::exists(to) || !QFile::copy(from, to)) return;
  QFile::setPermissions(to, QFile::permissions(to) | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

/// Copies all that is in a folder.
void CopyFolder(const QString& from, const QString& to) {
  QDir().mkpath(to);
  QDirIterator entries(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
  while (entries.hasNext()) {
    const QString entry = entries.next();
    const QString target = to + "/" + QDir(from).relativeFilePath(entry);
    if (entries.fileInfo().isDir()) {
      QDir().mkpath(target);
    } else {
      QDir().mkpath(QFileInfo(target).path());
      CopyFile(entry, target);
    }
  }
}

/// Whether a folder is missing or has nothing in it.
bool IsBare(const QString& folder) {
  return QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

/// Copies lists and plans: those that have no folder yet, and both as long as there is no list, as after a
/// first run that found nothing to copy.
void CopySamples(const QDir& from, const QString& to) {
  const bool hasLists = !IsBare(to + "/" + kListFolder);
  for (const char* name : {kListFolder, kPlanFolder}) {
    const QString target = to + "/" + name;
    const bool wanted = hasLists ? !QFileInfo::exists(target) : IsBare(target);
    if (wanted && from.exists(name)) CopyFolder(from.filePath(name), target);
  }
}

/// Whole path of the folder that the variable names; empty when it names none.
fs::path NamedFolder() {
#ifdef _WIN32
  const std::string named = qEnvironmentVariable("VELDRIN_HOME").toStdString();
#else
  const std::string named = qgetenv("VELDRIN_HOME").toStdString();
#endif
  fs::path folder;
  Guarded([&] {
    const fs::path path = WholePath(NativePath(named));
    if (IsFolderOnDisk(path)) folder = path;
  });
  return folder;
}

bool HoldsLists(const QString& folder) {
  return QFileInfo(folder + "/" + kListFolder).isDir();
}

}  // namespace

QString InstalledFolder(const QString& program) {
  QStringList candidates = {program};
  for (const QString& share : ShareFolders(program)) candidates += share + "/veldrin";
  for (const QString& candidate : candidates) {
    if (HoldsLists(candidate)) return QDir::cleanPath(candidate);
  }
  return {};
}

bool FillProgramFolder(const QString& folder, const QString& installed) {
  if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable()) return false;
  if (!installed.isEmpty() && QFileInfo(installed) != QFileInfo(folder)) {
    const QDir from(installed);
    CopySamples(from, folder);
    // Sounds and captions; a program that stands in the same folder stays where it is.
    for (const QString& name : from.entryList({"*.wav", "*.CAP", "*.cap"}, QDir::Files)) {
      CopyFile(from.filePath(name), folder + "/" + name);
    }
  }
  for (const char* name : {kListFolder, kPlanFolder}) QDir(folder).mkpath(name);
  return true;
}

fs::path ProgramFolder() {
  const fs::path named = NamedFolder();
  if (!named.empty()) return named;
  const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/veldrin";
  const QString installed = InstalledFolder(QCoreApplication::applicationDirPath());
  if (FillProgramFolder(own, installed)) return NativePath(own.toStdString());
  return NativePath((installed.isEmpty() ? QDir::homePath() : installed).toStdString());
}

}  // namespace veldrin
