#include "machine/files/share_folders.h"

#include <QDir>
#include <QStandardPaths>

namespace veldrin {

QStringList ShareFolders(const QString& program) {
  QStringList folders;
  QDir around(program);
  do {
    folders += around.filePath("share");
  } while (around.cdUp());
  const auto data = QStandardPaths::GenericDataLocation;
  for (const QString& folder : QStandardPaths::standardLocations(data)) {
    if (folder != QStandardPaths::writableLocation(data)) folders += folder;
  }
  return folders + QStringList{"/usr/local/share", "/usr/share"};
}

}  // namespace veldrin
