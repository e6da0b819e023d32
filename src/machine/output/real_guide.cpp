#include "machine/output/real_guide.h"

#include "machine/files/share_folders.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>

namespace veldrin {

namespace {

bool IsGuide(const QString& folder) {
  return QFileInfo(folder + "/en/index.html").isFile();
}

}  // namespace

QString GuideFolder(const QString& program) {
  QStringList candidates = {program + "/guide"};
  for (const QString& share : ShareFolders(program)) {
    candidates += {share + "/doc/veldrin/guide", share + "/veldrin/guide"};
  }
  for (const QString& candidate : candidates) {
    if (IsGuide(candidate)) return QDir::cleanPath(candidate);
  }
  return {};
}

bool OpenGuide(const QString& guide, bool japanese, std::string_view section) {
  const QDir language(guide + (japanese ? "/ja" : "/en"));
  const QString name = QString::fromUtf8(section.data(), static_cast<qsizetype>(section.size()));
  for (const QString& page : {"at/" + name + ".html", QString("index.html")}) {
    const QFileInfo file(language.filePath(page));
    if (file.isFile()) return QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
  }
  return false;
}

}  // namespace veldrin
