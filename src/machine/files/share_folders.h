// Where what was installed for the program may lie.
#pragma once

#include <QString>
#include <QStringList>

namespace veldrin {

/// The folders for shared data that a program in the folder `program` may have brought its own to, the
/// nearest first: share there and in every folder around it, which serves PREFIX/bin, a program that was
/// copied with its share folder, and any build folder of the repository; then the system's data folders
/// (XDG_DATA_DIRS). Where the program was built to be installed with another name for share
/// (CMAKE_INSTALL_DATADIR), that counts like it. They need not be there. The user's own is not among them.
QStringList ShareFolders(const QString& program);

}  // namespace veldrin
