#include "runtime/number_format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <vector>

namespace veldrin {

namespace {

std::vector<std::string_view> Sections(std::string_view format) {
  std::vector<std::string_view> sections;
  std::size_t begin = 0;
  for (std::size_t at = 0; at <= format.size(); ++at) {
    if (at < format.size() && format[at] == '\\') {
      ++at;
    } else if (at == format.size() || format[at] == ';') {
      sections.push_back(format.substr(begin, at - begin));
      begin = at + 1;
    }
  }
  return sections;
}

/// The digits of |value| rounded half away from zero at `decimals` places: whole part (empty for 0) and
/// exactly `decimals` digits behind it.
struct Digits {
  std::string whole;
  std::string decimals;
};

Digits RoundedDigits(double value, int decimals) {
  // The value's own decimal expansion is exact in fixed form, so half away from zero is decided on it by
  // the first dropped digit and not on a product with a power of ten, which could round a second time.
  std::array<char, 1500> buffer;  // 309 digits, the point and 1080 decimals fit
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                    std::chars_format::fixed, 1080);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
  const std::size_t point = text.find('.');
  std::string digits(text.substr(0, point));
  digits += text.substr(point + 1, static_cast<std::size_t>(decimals));
  const bool up = text[point + 1 + static_cast<std::size_t>(decimals)] >= '5';
  if (up) {
    std::size_t at = digits.size();
    while (at > 0 && digits[at - 1] == '9') digits[--at] = '0';
    if (at > 0) {
      ++digits[at - 1];
    } else {
      digits.insert(digits.begin(), '1');
    }
  }
  Digits rounded;
  rounded.whole = digits.substr(0, digits.size() - static_cast<std::size_t>(decimals));
  rounded.decimals = digits.substr(rounded.whole.size());
  rounded.whole.erase(0, rounded.whole.find_first_not_of('0'));
  return rounded;
}

bool IsPlace(char c) {
  return c == '#' || c == '0';
}

std::string FormatSection(double value, std::string_view section, char decimalSeparator) {
  int wholePlaces = 0;
  int decimalPlaces = 0;
  bool pointSeen = false;
  for (std::size_t at = 0; at < section.size(); ++at) {
    if (section[at] == '\\') {
      ++at;
    } else if (section[at] == '.') {
      pointSeen = true;
    } else if (IsPlace(section[at])) {
      ++(pointSeen ? decimalPlaces : wholePlaces);
    }
  }
  const Digits digits = RoundedDigits(value, decimalPlaces);

  std::string text;
  int placesLeft = wholePlaces;
  int decimal = 0;
  bool behindPoint = false;
  for (std::size_t at = 0; at < section.size(); ++at) {
    const char c = section[at];
    if (c == '\\') {
      if (++at < section.size()) text += section[at];
    } else if (c == '.') {
      behindPoint = true;
      text += decimalSeparator;
    } else if (!IsPlace(c)) {
      text += c;
    } else if (behindPoint) {
      // A "#" shows its digit only while some digit from here on is not zero.
      const auto rest = digits.decimals.find_first_not_of('0', static_cast<std::size_t>(decimal));
      if (c == '0' || rest != std::string::npos) text += digits.decimals[static_cast<std::size_t>(decimal)];
      ++decimal;
    } else {
      const int have = static_cast<int>(digits.whole.size());
      if (placesLeft == wholePlaces && have > wholePlaces) {
        text += digits.whole.substr(0, static_cast<std::size_t>(have - wholePlaces));
      }
      if (placesLeft <= have) {
        text += digits.whole[static_cast<std::size_t>(have - placesLeft)];
      } else if (c == '0') {
        text += '0';
      }
      --placesLeft;
    }
  }
  return text;
}

}  // namespace

std::string FormatNumber(double value, std::string_view format, char decimalSeparator) {
  const std::vector<std::string_view> sections = Sections(format);
  if (value == 0 && sections.size() > 2) return FormatSection(0, sections[2], decimalSeparator);
  if (value < 0 && sections.size() > 1) return FormatSection(value, sections[1], decimalSeparator);
  const std::string text = FormatSection(value, sections[0], decimalSeparator);
  return value < 0 ? "-" + text : text;
}

}  // namespace veldrin
