#include "runtime/conversion.h"

#include "runtime/fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace veldrin {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

/// How many characters at the front of `text` form a number; 0 when none do. The number may carry a sign,
/// needs at least one digit before the exponent, and its exponent counts only with a digit of its own.
std::size_t NumberLength(std::string_view text, char decimalSeparator) {
  std::size_t at = 0;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  std::size_t digits = 0;
  bool separatorSeen = false;
  for (; at < text.size(); ++at) {
    if (IsDigit(text[at])) {
      ++digits;
    } else if (text[at] == decimalSeparator && !separatorSeen) {
      separatorSeen = true;
    } else {
      break;
    }
  }
  if (digits == 0) return 0;
  std::size_t end = at;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (at < text.size() && IsDigit(text[at])) {
      while (at < text.size() && IsDigit(text[at])) ++at;
      end = at;
    }
  }
  return end;
}

/// Whether the first digit of a number that is not 0 stands, with the exponent counted in, before the point.
bool IsLarge(const std::string& number) {
  const std::size_t end = std::min(number.find_first_of("eE"), number.size());
  const std::size_t point = std::min(number.find('.'), end);
  const std::size_t digit = std::min(number.find_first_of("123456789"), end);
  const double place = static_cast<double>(point) - static_cast<double>(digit);
  double exponent = 0;
  for (std::size_t at = end + 1; at < number.size(); ++at) {
    if (number[at] >= '0' && number[at] <= '9') exponent = exponent * 10 + (number[at] - '0');
  }
  const bool negative = end + 1 < number.size() && number[end + 1] == '-';
  return place + (negative ? -exponent : exponent) > 0;
}

/// The value of a text that NumberLength found to be a number. Raises fault 6 beyond 64-bit floats.
double NumberValue(std::string_view text, char decimalSeparator) {
  std::string plain(text);
  if (decimalSeparator != '.') std::replace(plain.begin(), plain.end(), decimalSeparator, '.');
  const char* begin = plain.data();
  if (*begin == '+') ++begin;
  double value = 0;
  const auto result = std::from_chars(begin, plain.data() + plain.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // Too small for any float is zero; too large is an overflow. from_chars tells both by one word.
    if (!IsLarge(plain)) return 0;
    Raise(kFaultOverflow);
  }
  return value;
}

template <class Whole>
Whole ToWhole(double value) {
  const double rounded = RoundHalfToEven(value);
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Whole>::max());
  if (!fits) Raise(kFaultOverflow);
  return static_cast<Whole>(rounded);
}

template <class Float>
std::string Shortest(Float value, char decimalSeparator) {
  std::array<char, 512> buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  std::string text(buffer.data(), result.ptr);
  if (text == "-0") text = "0";
  if (decimalSeparator != '.') std::replace(text.begin(), text.end(), '.', decimalSeparator);
  return text;
}

}  // namespace

double RoundHalfToEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2.0) == 0 ? below : below + 1;
}

std::int16_t ToInt16(double value) {
  return ToWhole<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
  return ToWhole<std::int32_t>(value);
}

double ParseNumber(std::string_view text, char decimalSeparator) {
  const std::string_view number = Trimmed(text);
  if (number.empty() || NumberLength(number, decimalSeparator) != number.size()) Raise(kFaultTypeMismatch);
  return NumberValue(number, decimalSeparator);
}

std::int16_t ParseInt16(std::string_view text, char decimalSeparator) {
  return ToInt16(ParseNumber(text, decimalSeparator));
}

std::int32_t ParseInt32(std::string_view text, char decimalSeparator) {
  return ToInt32(ParseNumber(text, decimalSeparator));
}

float ParseSingle(std::string_view text, char decimalSeparator) {
  return ToSingle(ParseNumber(text, decimalSeparator));
}

double LeadingNumber(std::string_view text) {
  const std::string_view trimmed = Trimmed(text);
  const std::size_t length = NumberLength(trimmed, '.');
  if (length == 0) return 0;
  return NumberValue(trimmed.substr(0, length), '.');
}

double Divide(double dividend, double divisor) {
  if (divisor == 0) Raise(dividend == 0 ? kFaultOverflow : kFaultDivisionByZero);
  return dividend / divisor;
}

std::string ShortestText(float value, char decimalSeparator) {
  return Shortest(value, decimalSeparator);
}

std::string ShortestText(double value, char decimalSeparator) {
  return Shortest(value, decimalSeparator);
}

}  // namespace veldrin
