// A text as a field of CSV.
#pragma once

#include <string>

namespace veldrin {

/// The text in quotation marks, those inside doubled, where it would not be read back without.
std::string CsvField(const std::string& text);

}  // namespace veldrin
