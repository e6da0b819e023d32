#include "machine/registry/real_settings_tree.h"

#include "runtime/text.h"

#include <algorithm>
#include <cstddef>

namespace veldrin {

namespace {

constexpr std::string_view kHeading =
    "# Settings of Veldrin, in place of a registry. All running copies of the program share this file.\n";

/// Whether a key's line can hold it.
bool IsTellable(std::string_view key) {
  return std::none_of(key.begin(), key.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '\r') {
      quoted += "\\r";
    } else if (c == '\n') {
      quoted += "\\n";
    } else {
      if (c == '"' || c == '\\') quoted += '\\';
      quoted += c;
    }
  }
  return quoted + "\"";
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
      const char c = line[++at];
      text += c == 'r' ? '\r' : c == 'n' ? '\n' : c;
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

SettingsTree::SettingsTree(std::string_view text) {
  std::string key;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = WithoutReturn(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.starts_with('[') && line.ends_with(']')) {
      key = line.substr(1, line.size() - 2);
      continue;
    }
    const std::optional<std::string> name = TakeName(line);
    const std::optional<std::string> value = name ? TakeQuoted(line) : std::nullopt;
    if (value && !key.empty()) Write(key, *name, *value);
  }
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
