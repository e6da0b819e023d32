// Files that a drag of the desktop brings along.
#pragma once

#include <QMimeData>

#include <string>

namespace veldrin {

/// Whether a drag brings files of this machine along. Other links are text.
bool CarriesFiles(const QMimeData& data);

/// The path of the one file that a drag brings, as the program takes it, byte for byte; empty for none and
/// for several.
std::string DroppedPath(const QMimeData& data);

}  // namespace veldrin
