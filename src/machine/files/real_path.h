// Paths of the program, UTF-8 with the system's separators, as the system wants them, and back. Names are
// found without regard to case, part by part, also where the system tells "plan" from "Plan"; the name as it
// is written goes first.
#pragma once

#include <QString>
#include <QUrl>

#include <filesystem>
#include <optional>
#include <string>

namespace veldrin {

/// Raises fault 52 for the empty path and for one with a character that the system refuses in names.
std::filesystem::path NativePath(const std::string& text);
/// For Qt's own files. Where names are bytes, those that are no UTF-8 are lost on the way.
QString PathString(const std::filesystem::path& path);

/// The path of a file on this machine that somebody hands over as a URL, with all its bytes; empty for other
/// URLs.
std::string BytesOfLocalFile(const QUrl& url);
/// The URL of a whole path, again with all its bytes.
QUrl LocalFileUrl(const std::string& path);

/// The whole path, from the root on and without "." and "..". As for the system, ".." behind a link leads out
/// of what the link leads to.
std::filesystem::path WholePath(const std::filesystem::path& path);

/// The whole path, as above, each part by its name on the disk. Parts that
/// are not there stay as they are, drive letters become capitals. Raises fault 52 as NativePath does.
std::filesystem::path PathOnDisk(const std::string& text);

/// The name by which the folder lists `name`, its case and a short form aside; nothing when it has no such
/// entry or cannot be listed. Of several the one as written comes first, then the one that sorts first.
std::optional<std::filesystem::path> ListedName(const std::filesystem::path& folder,
                                                const std::filesystem::path& name);

}  // namespace veldrin
