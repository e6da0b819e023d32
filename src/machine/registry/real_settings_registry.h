// A registry kept in one settings file, for systems that have none. Several running copies share the file:
// each write reads it anew under a lock and replaces it as a whole.
//
// What cannot be put on the disk, as in a folder that denies writing, is kept for this run and goes along
// with the next write that can; the first such failure is told. A damaged file is read as far as it goes, and
// kept beside the one that replaces it. The local machine's root is not kept: it answers what is known of the
// processor.
#pragma once

#include "machine/registry/real_settings_tree.h"
#include "machine/registry/settings_trouble.h"
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

  /// Hears of a damaged file and, once, of one that cannot be written.
  TellSettingsTrouble troubled;

  /// Looks whether the file is whole and can be written. One that is damaged is replaced by what can be read
  /// of it.
  void Check();
  /// Where a user's value stands, for people.
  std::string PlaceOf(const std::string& key) const;

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

  /// What the file holds; nothing where it cannot be read.
  SettingsTree Load() const;
  /// The file's tree with what is still to be written.
  SettingsTree Current() const;
  /// Puts a change on the disk together with those that wait. False when it has to wait as well.
  bool Store(const Change& change);
  /// Replaces the file by its tree with what waits, where there is a reason to.
  bool PutOnDisk();
  void Replace(std::string& copy) const;
  std::string SetAside(const std::string& bytes) const;
  static bool Apply(SettingsTree& tree, const Change& change);

  QString file_;
  std::vector<Change> waiting_;
  bool failureTold_ = false;
};

}  // namespace veldrin
