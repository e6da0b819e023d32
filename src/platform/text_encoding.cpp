#include "platform/text_encoding.h"

#include <array>
#include <cstdint>

namespace veldrin {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr char kGap = '?';

/// Characters of the bytes 0x80..0x9F; 0 where there is none.
constexpr std::array<char32_t, 32> kWesternHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

/// A character of a text, or a byte that is no part of one: then `length` is 1 and `valid` false.
struct CodePoint {
  char32_t code;
  std::size_t length;
  bool valid;
};

CodePoint CodePointAt(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[at + k]); };
  const char32_t lead = byte(0);
  if (lead < 0x80) return {lead, 1, true};
  const CodePoint broken = {lead, 1, false};
  std::size_t length = 0;
  char32_t code = 0;
  char32_t lowest = 0;
  if (lead >= 0xC0 && lead < 0xE0) {
    length = 2, code = lead & 0x1F, lowest = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    length = 3, code = lead & 0x0F, lowest = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF8) {
    length = 4, code = lead & 0x07, lowest = 0x10000;
  }
  if (length == 0 || at + length > text.size()) return broken;
  for (std::size_t k = 1; k < length; ++k) {
    if ((byte(k) & 0xC0) != 0x80) return broken;
    code = code << 6 | (byte(k) & 0x3F);
  }
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < lowest || code > 0x10FFFF || surrogate) return broken;
  return {code, length, true};
}

void Append(std::string& text, char32_t code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

/// The byte of a character in code page 1252; -1 when it has none.
int WesternByte(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<int>(code);
  for (std::size_t k = 0; k < kWesternHigh.size(); ++k) {
    const char32_t character = kWesternHigh[k] != 0 ? kWesternHigh[k] : 0x80 + static_cast<char32_t>(k);
    if (character == code) return 0x80 + static_cast<int>(k);
  }
  return -1;
}

/// The small letter of a capital: Latin with the accented ones of Western Europe, Greek, Cyrillic, full
/// width.
char32_t Small(char32_t code) {
  struct Run {
    char32_t first, last, distance;
  };
  static constexpr Run kCapitals[] = {{U'A', U'Z', 0x20},     {0x00C0, 0x00D6, 0x20}, {0x00D8, 0x00DE, 0x20},
                                      {0x0391, 0x03A1, 0x20}, {0x03A3, 0x03AB, 0x20}, {0x0410, 0x042F, 0x20},
                                      {0x0400, 0x040F, 0x50}, {0xFF21, 0xFF3A, 0x20}};
  for (const Run& run : kCapitals) {
    if (code >= run.first && code <= run.last) return code + run.distance;
  }
  return code;
}

std::string Folded(std::string_view path) {
  std::string folded;
  for (std::size_t at = 0; at < path.size();) {
    const CodePoint point = CodePointAt(path, at);
    if (point.valid && point.length < 4) {
      Append(folded, Small(point.code));
    } else {
      folded += path.substr(at, point.length);
    }
    at += point.length;
  }
  return folded;
}

}  // namespace

bool IsValidUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const CodePoint point = CodePointAt(bytes, at);
    if (!point.valid) return false;
    at += point.length;
  }
  return true;
}

std::string DecodeWestern(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    char32_t code = static_cast<unsigned char>(c);
    if (code >= 0x80 && code < 0xA0 && kWesternHigh[code - 0x80] != 0) code = kWesternHigh[code - 0x80];
    Append(text, code);
  }
  return text;
}

std::optional<std::string> EncodeWestern(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint point = CodePointAt(text, at);
    const int byte = point.valid ? WesternByte(point.code) : -1;
    if (byte < 0) return std::nullopt;
    bytes += static_cast<char>(byte);
    at += point.length;
  }
  return bytes;
}

std::optional<std::string> DecodeInPage(const CodePages& pages, int page, std::string_view bytes) {
  if (page == kUtf8Page) {
    if (!IsValidUtf8(bytes)) return std::nullopt;
    return std::string(bytes.substr(bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0));
  }
  if (page == kWesternPage) return DecodeWestern(bytes);
  if (!pages.decode) return std::nullopt;
  return pages.decode(page, bytes);
}

std::string TextEncoding::Decode(const std::string& path, std::string_view bytes) {
  const Form form = FormOf(bytes);
  forms_[Folded(path)] = form;
  return DecodeInPage(pages_, form.page, bytes).value_or(std::string());
}

std::string TextEncoding::Encode(const std::string& path, std::string_view text) const {
  const auto found = forms_.find(Folded(path));
  const Form form = found == forms_.end() ? Form{pages_.systemPage, false} : found->second;
  if (form.page == kUtf8Page) return std::string(form.mark ? kByteOrderMark : "").append(text);
  // A page serves only when the bytes read back the same: not for a character that has but a likeness in it,
  // nor for bytes that would pass for UTF-8.
  const std::optional<std::string> bytes = EncodePage(form.page, text);
  if (bytes && DecodeInPage(pages_, FormOf(*bytes).page, *bytes) == text) return *bytes;
  if (pages_.systemPage == kUtf8Page) return std::string(text);
  return EncodeWithGaps(pages_.systemPage, text);
}

TextEncoding::Form TextEncoding::FormOf(std::string_view bytes) const {
  if (pages_.systemPage == kUtf8Page && IsValidUtf8(bytes))
    return {kUtf8Page, bytes.starts_with(kByteOrderMark)};
  const int foreign = pages_.japanese ? kJapanesePage : kWesternPage;
  const int page = pages_.systemPage == kUtf8Page ? foreign : pages_.systemPage;
  return {DecodeInPage(pages_, page, bytes) ? page : kWesternPage, false};
}

std::optional<std::string> TextEncoding::EncodePage(int page, std::string_view text) const {
  if (page == kWesternPage) return EncodeWestern(text);
  if (!pages_.encode) return std::nullopt;
  return pages_.encode(page, text);
}

std::string TextEncoding::EncodeWithGaps(int page, std::string_view text) const {
  if (const std::optional<std::string> whole = EncodePage(page, text)) return *whole;
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = CodePointAt(text, at).length;
    bytes += EncodePage(page, text.substr(at, length)).value_or(std::string(1, kGap));
    at += length;
  }
  return bytes;
}

}  // namespace veldrin
