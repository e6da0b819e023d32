#include "machine/registry/real_settings_tree.h"

#include "runtime/text.h"
#include "runtime/utf8.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace veldrin {

namespace {

constexpr std::string_view kByteMark = "\xEF\xBB\xBF";  // that editors put before a text
constexpr int kHex = 16;
constexpr std::size_t kHexDigits = 2;  // of a byte
constexpr std::string_view kHeading =
    "# Settings of Veldrin, in place of a registry. All running copies of the program share this file.\n";

/// Whether a key's line can hold it.
bool IsTellable(std::string_view key) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20; };
  return std::none_of(key.begin(), key.end(), isControl) && IsValidUtf8(key);
}

std::string EscapedByte(char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  return {'\\', 'x', kDigits[value / kHex], kDigits[value % kHex]};
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (std::size_t at = 0; at < text.size();) {
    const CodePoint next = CodePointAt(text, at);
    if (!next.valid) {
      quoted += EscapedByte(text[at]);
    } else if (next.code == '\r') {
      quoted += "\\r";
    } else if (next.code == '\n') {
      quoted += "\\n";
    } else {
      if (next.code == '"' || next.code == '\\') quoted += '\\';
      quoted += text.substr(at, next.bytes);
    }
    at += next.bytes;
  }
  return quoted + "\"";
}

/// What stands behind a backslash, `at` being the place of its first character and of its last one then.
char Unescaped(std::string_view line, std::size_t& at) {
  const char c = line[at];
  if (c == 'r') return '\r';
  if (c == 'n') return '\n';
  if (c != 'x' || line.size() - at <= kHexDigits) return c;
  unsigned value = 0;
  const char* const digits = line.data() + at + 1;
  if (std::from_chars(digits, digits + kHexDigits, value, kHex).ptr != digits + kHexDigits) return c;
  at += kHexDigits;
  return static_cast<char>(value);
}

/// Takes a quoted text from the front of `line`; nothing when there is none, or its end is missing.
std::optional<std::string> TakeQuoted(std::string_view& line) {
  if (!line.starts_with('"')) return std::nullopt;
  std::string text;
  for (std::size_t at = 1; at < line.size(); ++at) {
    if (line[at] == '"') {
      line.remove_prefix(at + 1);
      return text;
    }
    if (line[at] == '\\' && at + 1 < line.size()) {
      text += Unescaped(line, ++at);
    } else {
      text += line[at];
    }
  }
  return std::nullopt;
}

/// Takes a value's name and the "=" behind it.
std::optional<std::string> TakeName(std::string_view& line) {
  std::optional<std::string> name;
  if (line.starts_with('@')) {
    name.emplace();
    line.remove_prefix(1);
  } else {
    name = TakeQuoted(line);
  }
  if (!name || !line.starts_with('=')) return std::nullopt;
  line.remove_prefix(1);
  return name;
}

std::string_view WithoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

SettingsTree::SettingsTree(std::string_view text) : damaged_(text.empty() || !IsValidUtf8(text)) {
  if (text.starts_with(kByteMark)) text.remove_prefix(kByteMark.size());
  std::string key;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    if (!TakeLine(WithoutReturn(text.substr(0, end)), key)) damaged_ = true;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

/// Takes a line in; `key` is the one that it stands under. False for a line of no known form.
bool SettingsTree::TakeLine(std::string_view line, std::string& key) {
  if (line.empty() || line.starts_with('#')) return true;
  if (line.starts_with('[') && line.ends_with(']')) {
    key = line.substr(1, line.size() - 2);
    return true;
  }
  const std::optional<std::string> name = TakeName(line);
  const std::optional<std::string> value = name ? TakeQuoted(line) : std::nullopt;
  return value && !key.empty() && Write(key, *name, *value) && line.empty();
}

std::string SettingsTree::Text() const {
  std::string text(kHeading);
  for (const auto& [folded, key] : keys_) {
    text += "\n[" + key.name + "]\n";
    for (const auto& [foldedName, value] : key.values) {
      text += (value.name.empty() ? "@" : Quoted(value.name)) + "=" + Quoted(value.text) + "\n";
    }
  }
  return text;
}

std::optional<std::string> SettingsTree::Read(const std::string& key, const std::string& value) const {
  const auto place = keys_.find(LowerCase(key));
  if (place == keys_.end()) return std::nullopt;
  const auto found = place->second.values.find(LowerCase(value));
  if (found == place->second.values.end()) return std::nullopt;
  return found->second.text;
}

bool SettingsTree::Write(const std::string& key, const std::string& value, const std::string& text) {
  if (!IsTellable(key)) return false;
  Key& place = keys_.try_emplace(LowerCase(key), Key{key, {}}).first->second;
  place.values.try_emplace(LowerCase(value), Value{value, {}}).first->second.text = text;
  return true;
}

bool SettingsTree::DeleteKey(const std::string& key) {
  const std::string top = LowerCase(key);
  const std::string below = top + "\\";
  return std::erase_if(keys_, [&](const auto& entry) {
           return entry.first == top || entry.first.starts_with(below);
         }) > 0;
}

}  // namespace veldrin
