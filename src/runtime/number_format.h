// Number texts by format, as the result columns and the report show them.
//
// A format has up to three sections parted by ";": for values above zero, below zero, and zero. In a section
// "#" is a digit place that shows nothing for a leading or trailing zero, "0" a place that always shows,
// "." the separator, which shows wherever it stands, "\" makes the next character plain, "+", "-" and " "
// stand for themselves. Digits beyond the first place all show. With one section a negative value gets a
// leading "-".
#pragma once

#include <string>
#include <string_view>

namespace veldrin {

/// `value` by `format`, rounded half away from zero at the last shown decimal. The section is chosen by the
/// sign before rounding, so 0.03 by "+#0.0;-#0.0;\  +-0" reads "+0.0". Raises nothing.
std::string FormatNumber(double value, std::string_view format, char decimalSeparator = '.');

}  // namespace veldrin
