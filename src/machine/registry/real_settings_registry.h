// A registry kept in one settings file, for systems that have none. Several running copies share the file:
// each write reads it anew under a lock and replaces it as a whole.
//
// What cannot be put on the disk, as in a folder that denies writing, is kept for this run and goes along
// with the next write that can. The local machine's root is not kept: it answers what is known of the
// processor.
#pragma once

#include "machine/registry/real_settings_tree.h"
#include "platform/system.h"

#include <QString>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veldrin {

class SettingsRegistry : public Registry {
 public:
  /// The user's own file, below the folder for settings.
  static QString UsersFile();

  explicit SettingsRegistry(QString file = UsersFile()) : file_(std::move(file)) {}

  std::optional<std::string> Read(RegistryRoot root, const std::string& key,
                                  const std::string& value) const override;
  bool Write(RegistryRoot root, const std::string& key, const std::string& value,
             const std::string& text) override;
  bool DeleteKey(RegistryRoot root, const std::string& key) override;

 private:
  /// A change of the tree: a value, or without one a key that goes.
  struct Change {
    std::string key;
    std::optional<std::string> value;
    std::string text;
  };

  /// What the file holds; nothing when it is there and cannot be read.
  std::optional<SettingsTree> Load() const;
  /// The file's tree with what is still to be written.
  SettingsTree Current() const;
  /// Puts a change on the disk together with those that wait. False when it has to wait as well.
  bool Store(const Change& change);
  static bool Apply(SettingsTree& tree, const Change& change);

  QString file_;
  std::vector<Change> waiting_;
};

}  // namespace veldrin
