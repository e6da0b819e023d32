// Numbers between their widths, and between numbers and texts read from people and files.
//
// Whole numbers are made by rounding half to even and are checked against their width where they are made.
// Texts are read with the decimal separator given, since the system's may be a comma.
#pragma once

#include "runtime/fault.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace veldrin {

/// `value` rounded to a whole number, ties to the even one. Raises nothing.
double RoundHalfToEven(double value);

/// `value` rounded half to even as a 16-bit number. Raises fault 6 outside -32768..32767 and for no number.
std::int16_t ToInt16(double value);

/// `value` rounded half to even as a 32-bit number. Raises fault 6 outside its range and for no number.
std::int32_t ToInt32(double value);

/// `value` narrowed to 32 bits. Raises fault 6 when it is too large for them.
inline float ToSingle(double value) {
  const auto single = static_cast<float>(value);
  if (!std::isfinite(single)) Raise(kFaultOverflow);
  return single;
}

/// The number that the whole of `text` spells: blanks around it are allowed, a sign, digits with at most one
/// `decimalSeparator`, an exponent. Raises fault 13 for any other text, the empty one included, and fault 6
/// for a number beyond 64-bit floats.
double ParseNumber(std::string_view text, char decimalSeparator = '.');

/// ParseNumber, then ToInt16. Raises fault 13 or 6.
std::int16_t ParseInt16(std::string_view text, char decimalSeparator = '.');

/// ParseNumber, then ToInt32. Raises fault 13 or 6.
std::int32_t ParseInt32(std::string_view text, char decimalSeparator = '.');

/// ParseNumber, then ToSingle. Raises fault 13 or 6.
float ParseSingle(std::string_view text, char decimalSeparator = '.');

/// The number at the beginning of `text`, blanks skipped, with a point as separator; 0 when there is none.
/// Raises fault 6 for a number beyond 64-bit floats.
double LeadingNumber(std::string_view text);

/// `dividend` over `divisor` in 64 bits. Raises fault 11 for a divisor of 0, fault 6 when both are 0.
double Divide(double dividend, double divisor);

/// The shortest decimal text that reads back to the same 32-bit float, never in exponent form, with a
/// separator only where there are decimals.
std::string ShortestText(float value, char decimalSeparator = '.');

/// The same for a 64-bit float.
std::string ShortestText(double value, char decimalSeparator = '.');

}  // namespace veldrin
