// Keys with string values as a text that people can read and change:
//
//   [CurrentUser\Software\Tarn Ridge\Veldrin]
//   "Language"="JP"
//
//   [CurrentUser\Software\Tarn Ridge\Veldrin\Ext\1]
//   @="nx4"
//
// "@" is a key's default value. Within the quotes stand \\ for a backslash, \" for a quote, \r and \n for
// line ends, and \xE9 for a byte that is no part of a character, as in names of files. Lines that begin with
// "#" and empty ones say nothing; those of any other form are passed over and make the text a damaged one.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace veldrin {

/// The tree. Keys and names of values do not depend on case and keep the case they were made with; a key's
/// first part tells its root.
class SettingsTree {
 public:
  SettingsTree() = default;
  explicit SettingsTree(std::string_view text);

  std::string Text() const;
  /// Whether the text that it was made of was more than it could take in: bytes that are no UTF-8, lines of
  /// no known form, or nothing at all.
  bool WasDamaged() const { return damaged_; }

  std::optional<std::string> Read(const std::string& key, const std::string& value) const;
  /// False for a key that the text cannot tell: one with a control character, or one that is no UTF-8.
  bool Write(const std::string& key, const std::string& value, const std::string& text);
  /// Removes a key and all below it; false when nothing was there.
  bool DeleteKey(const std::string& key);

 private:
  struct Value {
    std::string name;
    std::string text;
  };
  struct Key {
    std::string name;
    std::map<std::string, Value> values;  // by their names in small letters
  };

  bool TakeLine(std::string_view line, std::string& key);

  std::map<std::string, Key> keys_;  // by their names in small letters
  bool damaged_ = false;
};

}  // namespace veldrin
