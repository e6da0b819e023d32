#include "platform/text_encoding.h"

#include "runtime/text.h"
#include "runtime/utf8.h"

#include <algorithm>
#include <array>

namespace veldrin {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Characters of the bytes 0x80..0x9F; 0 where there is none.
constexpr std::array<char32_t, 32> kWesternHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
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

}  // namespace

std::string DecodeWestern(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    char32_t code = static_cast<unsigned char>(c);
    if (code >= 0x80 && code < 0xA0 && kWesternHigh[code - 0x80] != 0) code = kWesternHigh[code - 0x80];
    AppendCodePoint(text, code);
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
    at += point.bytes;
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
  forms_[LowerCase(path)] = form;
  return DecodeInPage(pages_, form.page, bytes).value_or(std::string());
}

std::string TextEncoding::Encode(const std::string& path, std::string_view text) const {
  const auto found = forms_.find(LowerCase(path));
  const Form form = found == forms_.end() ? Form{pages_.systemPage, false} : found->second;
  if (form.page == kUtf8Page) return std::string(form.mark ? kByteOrderMark : "").append(text);
  // A page serves only when the bytes read back the same: not for a character that has but a likeness in it,
  // nor for bytes that would pass for UTF-8.
  const std::optional<std::string> bytes = EncodePage(form.page, text);
  if (bytes && DecodeInPage(pages_, FormOf(*bytes).page, *bytes) == text) return *bytes;
  return std::string(text);
}

TextEncoding::Form TextEncoding::FormOf(std::string_view bytes) const {
  const bool utf8System = pages_.systemPage == kUtf8Page;
  // Plain ASCII is both; what comes to stand in such a file is for the programs of this system.
  if (IsValidUtf8(bytes) && (utf8System || !IsAscii(bytes)))
    return {kUtf8Page, bytes.starts_with(kByteOrderMark)};
  const int foreign = pages_.japanese ? kJapanesePage : kWesternPage;
  const int page = utf8System ? foreign : pages_.systemPage;
  return {DecodeInPage(pages_, page, bytes) ? page : kWesternPage, false};
}

std::optional<std::string> TextEncoding::EncodePage(int page, std::string_view text) const {
  if (page == kWesternPage) return EncodeWestern(text);
  if (!pages_.encode) return std::nullopt;
  return pages_.encode(page, text);
}

}  // namespace veldrin
