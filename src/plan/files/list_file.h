// A list file's text, from the disk to UTF-8.
#pragma once

#include "platform/text_encoding.h"

#include <optional>
#include <string>

namespace veldrin {

/// The text of the file: in `page` where one is given, else as the windows read it with these pages. Nothing,
/// and what is wrong in `mistake`, for what cannot be read, is too large for a list or is no text of `page`.
std::optional<std::string> ReadListFile(const std::string& path, const CodePages& pages,
                                        std::optional<int> page, std::string& mistake);

/// Whether texts of the page can be decoded here.
bool IsKnownPage(const CodePages& pages, int page);

}  // namespace veldrin
