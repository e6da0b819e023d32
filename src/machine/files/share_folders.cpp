#include "machine/files/share_folders.h"

#include <QDir>
#include <QStandardPaths>

namespace veldrin {

QStringList ShareFolders(const QString& program) {
  QStringList folders;
  QDir around(program);
  do {
    for (const char* name : {"share", VELDRIN_DATA_FOLDER}) folders += around.filePath(name);
  } while (around.cdUp());
  const auto data = QStandardPaths::GenericDataLocation;
  for (const QString& folder : QStandardPaths::standardLocations(data)) {
    if (folder != QStandardPaths::writableLocation(data)) folders += folder;
  }
  folders += {"/usr/local/share", "/usr/share"};
  folders.removeDuplicates();
  return folders;
}

}  // namespace veldrin
