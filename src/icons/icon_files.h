// The icons as files, in the folders where a desktop looks for them.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace veldrin {

/// A file by its place below the folder of a theme, such as "64x64/apps/veldrin.png".
struct IconFile {
  QString place;
  QByteArray bytes;
};

/// All of them: the program's icon and those of its files, as SVG and as PNG from 16 to 512 pixels.
std::vector<IconFile> IconFiles();

/// Writes them below `folder`, which is made where it is missing. False when one cannot be written.
bool WriteIcons(const QString& folder);

}  // namespace veldrin
