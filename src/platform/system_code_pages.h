// What the system knows of code pages: Windows by its own conversions, the others by iconv, where there is
// one.
#pragma once

#include "platform/text_encoding.h"

namespace veldrin {

/// The system's page and its conversions. Everywhere but on Windows the page is UTF-8. `japanese` tells
/// whether the system is a Japanese one. Raises nothing; a page that the system does not know converts
/// nothing.
CodePages SystemCodePages(bool japanese);

}  // namespace veldrin
