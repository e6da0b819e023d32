#include "runtime/utf8.h"

namespace veldrin {

CodePoint CodePointAt(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[at + k]); };
  const char32_t lead = byte(0);
  if (lead < 0x80) return {lead, 1, true};
  const CodePoint broken = {lead, 1, false};
  std::size_t bytes = 0;
  char32_t code = 0;
  char32_t lowest = 0;
  if (lead >= 0xC0 && lead < 0xE0) {
    bytes = 2, code = lead & 0x1F, lowest = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    bytes = 3, code = lead & 0x0F, lowest = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF8) {
    bytes = 4, code = lead & 0x07, lowest = 0x10000;
  }
  if (bytes == 0 || at + bytes > text.size()) return broken;
  for (std::size_t k = 1; k < bytes; ++k) {
    if ((byte(k) & 0xC0) != 0x80) return broken;
    code = code << 6 | (byte(k) & 0x3F);
  }
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < lowest || code > 0x10FFFF || surrogate) return broken;
  return {code, bytes, true};
}

void AppendCodePoint(std::string& text, char32_t code) {
  const auto follow = [&](int shift) { text += static_cast<char>(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    follow(0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | code >> 12);
    follow(6);
    follow(0);
  } else {
    text += static_cast<char>(0xF0 | code >> 18);
    follow(12);
    follow(6);
    follow(0);
  }
}

bool IsValidUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const CodePoint point = CodePointAt(bytes, at);
    if (!point.valid) return false;
    at += point.bytes;
  }
  return true;
}

}  // namespace veldrin
