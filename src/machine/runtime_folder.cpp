#include "machine/runtime_folder.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace veldrin {

QString UsersRuntimeFolder() {
#ifdef _WIN32
  return {};  // the folder for temporary files is the user's own already
#else
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  return !folder.isEmpty() && QFileInfo(folder).isDir() && QFileInfo(folder).isWritable() ? folder
                                                                                          : QString();
#endif
}

}  // namespace veldrin
