#include "machine/output/real_association.h"

#ifdef _WIN32

#include "machine/registry/real_windows_registry.h"

#include <shlobj.h>
#include <windows.h>

namespace veldrin {

namespace {

void TellDesktop() {
  SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

}  // namespace

void AssociateOnDesktop(const QString& /*extension*/) {
  WindowsRegistry::TieFileType();
  TellDesktop();
}

void DropOnDesktop(const QString& /*extension*/) {
  TellDesktop();
}

}  // namespace veldrin

#else

#include "machine/files/real_path.h"
#include "machine/files/real_replacing_file.h"
#include "machine/output/real_desktop_tools.h"
#include "runtime/fault.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUrl>

namespace veldrin {

namespace {

constexpr char kDesktopEntry[] = "veldrin-plan.desktop";
constexpr char kInstalledEntry[] = "veldrin.desktop";
constexpr char kType[] = "application/x-veldrin-plan";

QString DataFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString PackageFolder() {
  return DataFolder() + "/mime";
}

QString EntryFolder() {
  return DataFolder() + "/applications";
}

QString PackageFile(const QString& extension) {
  const QString name = QString::fromLatin1(QUrl::toPercentEncoding(extension.toLower()));
  return PackageFolder() + "/packages/veldrin-" + name + ".xml";
}

QString DesktopFile() {
  return EntryFolder() + "/" + kDesktopEntry;
}

/// Whether the desktop has an entry that was installed with this very program, so that the user needs none.
bool HasInstalledEntry() {
  const QString place = QString("applications/") + kInstalledEntry;
  if (QStandardPaths::locate(QStandardPaths::GenericDataLocation, place).isEmpty()) return false;
  const QFileInfo started(QStandardPaths::findExecutable("veldrin"));
  return started.canonicalFilePath() ==
         QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath();
}

/// A pattern that matches names with this extension, in small letters as the database wants it for any case.
QString Pattern(const QString& extension) {
  QString pattern = "*.";
  for (const QChar c : extension.toLower())
    pattern += QString("*?[").contains(c) ? "[" + QString(c) + "]" : QString(c);
  return pattern;
}

QString Package(const QString& extension) {
  return QString(
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
             "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
             "  <mime-type type=\"%1\">\n"
             "    <comment>Veldrin mission plan</comment>\n"
             "    <comment xml:lang=\"ja\">べるどりん ミッションプラン</comment>\n"
             "    <sub-class-of type=\"text/plain\"/>\n"
             "    <glob weight=\"60\" pattern=\"%2\"/>\n"
             "  </mime-type>\n"
             "</mime-info>\n")
      .arg(kType, Pattern(extension).toHtmlEscaped());
}

/// The program's path as a word of an Exec line: quoted, escaped within the quotes, and once more as a value.
QString ExecWord(const QString& path) {
  QString word;
  for (const QChar c : path) {
    if (QString("\"`$\\").contains(c)) word += '\\';
    word += c;
    if (c == '%') word += c;
  }
  return "\"" + word.replace("\\", "\\\\") + "\"";
}

/// TryExec hides the entry once the program has gone.
QString Entry() {
  const QString program = QCoreApplication::applicationFilePath();
  return QString(
             "[Desktop Entry]\n"
             "Type=Application\n"
             "Name=Veldrin\n"
             "Name[ja]=べるどりん君\n"
             "Exec=%1 %f\n"
             "TryExec=%2\n"
             "NoDisplay=true\n"
             "MimeType=%3;\n")
      .arg(ExecWord(program), QString(program).replace("\\", "\\\\"), kType);
}

bool WriteFile(const QString& path, const QString& text) {
  QDir().mkpath(QFileInfo(path).path());
  return Guarded([&] {
           ReplacingFile file(NativePath(path.toStdString()));
           file.Append(text.toStdString());
           file.Commit();
         }) == 0;
}

bool HasDatabase() {
  return !QStandardPaths::findExecutable("update-mime-database").isEmpty();
}

/// The tools take in what stands in the folders when they run, and not only what one change put there.
void TakeIn(const QList<QStringList>& more) {
  RunBehind(PackageFolder(), QList<QStringList>{{"update-mime-database", PackageFolder()}} + more);
}

}  // namespace

void AssociateOnDesktop(const QString& extension) {
  if (extension.isEmpty() || !HasDatabase()) return;
  const bool installed = HasInstalledEntry();
  // The package last: without the entry it would tie the files to nothing.
  if (!installed && !WriteFile(DesktopFile(), Entry())) return;
  if (!WriteFile(PackageFile(extension), Package(extension))) return;
  // One of a time before the program was installed would stand beside the installed one.
  if (installed) QFile::remove(DesktopFile());
  TakeIn({{"update-desktop-database", EntryFolder()},
          {"xdg-mime", "default", installed ? kInstalledEntry : kDesktopEntry, kType}});
}

void DropOnDesktop(const QString& extension) {
  if (extension.isEmpty() || !QFile::remove(PackageFile(extension))) return;
  const bool wasLast =
      QDir(PackageFolder() + "/packages").entryList({"veldrin-*.xml"}, QDir::Files).isEmpty();
  if (wasLast) {
    QFile::remove(DesktopFile());
    TakeIn({{"update-desktop-database", EntryFolder()}});
  } else {
    TakeIn({});
  }
}

}  // namespace veldrin

#endif
