#include "desktop/real_program_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace veldrin {

namespace {

constexpr char kListFolder[] = "LIST";
constexpr char kPlanFolder[] = "DAT";

/// Copies a file that is not there yet; the copy may be written, whatever the installed one allows.
void CopyFile(const QString& from, const QString& to) {
  if (QFile::exists(to) || !QFile::copy(from, to)) return;
  QFile::setPermissions(to, QFile::permissions(to) | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

/// Copies a folder that is not there yet, with all that is in it.
void CopyFolder(const QString& from, const QString& to) {
  if (QFileInfo::exists(to)) return;
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

bool HoldsLists(const QString& folder) {
  return QFileInfo(folder + "/" + kListFolder).isDir();
}

}  // namespace

QString InstalledFolder() {
  const QString program = QCoreApplication::applicationDirPath();
  // Beside the program, PREFIX/bin, and build/PRESET/bin of the repository.
  QStringList candidates = {program, program + "/share/veldrin", program + "/../share/veldrin",
                            program + "/../../../share/veldrin"};
  for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
    if (folder == QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) continue;
    candidates += folder + "/veldrin";
  }
  candidates += {"/usr/local/share/veldrin", "/usr/share/veldrin"};
  for (const QString& candidate : candidates) {
    if (HoldsLists(candidate)) return QDir::cleanPath(candidate);
  }
  return {};
}

bool FillProgramFolder(const QString& folder, const QString& installed) {
  if (!QDir().mkpath(folder) || !QFileInfo(folder).isWritable()) return false;
  if (!installed.isEmpty() && QFileInfo(installed) != QFileInfo(folder)) {
    const QDir from(installed);
    for (const char* name : {kListFolder, kPlanFolder}) {
      if (from.exists(name)) CopyFolder(from.filePath(name), folder + "/" + name);
    }
    // Sounds and captions; a program that stands in the same folder stays where it is.
    for (const QString& name : from.entryList({"*.wav", "*.CAP", "*.cap"}, QDir::Files)) {
      CopyFile(from.filePath(name), folder + "/" + name);
    }
  }
  for (const char* name : {kListFolder, kPlanFolder}) QDir(folder).mkpath(name);
  return true;
}

QString ProgramFolder() {
  const QString named = qEnvironmentVariable("VELDRIN_HOME");
  if (!named.isEmpty() && QFileInfo(named).isDir()) return QDir(named).absolutePath();
  const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/veldrin";
  const QString installed = InstalledFolder();
  if (FillProgramFolder(own, installed)) return own;
  return installed.isEmpty() ? QDir::homePath() : installed;
}

}  // namespace veldrin
