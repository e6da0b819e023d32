#include "machine/registry/real_settings_registry.h"

#include "machine/files/real_path.h"
#include "machine/files/real_replacing_file.h"
#include "machine/real_lock.h"
#include "machine/real_processor.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

namespace veldrin {

namespace {

constexpr int kLockPatience = 3000;  // ms for the other copies of the program

/// A key with its root in front and without backslashes at its ends; empty for a root itself.
std::string WholeKey(RegistryRoot root, const std::string& key) {
  const auto first = key.find_first_not_of('\\');
  if (first == std::string::npos) return "";
  const std::string kept = key.substr(first, key.find_last_not_of('\\') - first + 1);
  return (root == RegistryRoot::CurrentUser ? "CurrentUser\\" : "ClassesRoot\\") + kept;
}

/// What a registry tells of the processor, by the two values that the program asks for.
std::optional<std::string> ProcessorValue(const std::string& key, const std::string& value) {
  static const ProcessorNames kNames = SystemProcessorNames();
  const auto asks = [&](const char* knownKey, const char* knownValue) {
    return EqualsIgnoringCase(key, knownKey) && EqualsIgnoringCase(value, knownValue);
  };
  std::string text;
  if (asks("hardware\\DESCRIPTION\\System\\CentralProcessor\\0", "VendorIdentifier")) text = kNames.vendor;
  if (asks("Enum\\Root\\*PNP0C01\\0000", "CPU")) text = kNames.model;
  return text.empty() ? std::nullopt : std::optional(text);
}

}  // namespace

QString SettingsRegistry::UsersFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return folder + "/veldrin/registry.txt";
}

std::optional<std::string> SettingsRegistry::Read(RegistryRoot root, const std::string& key,
                                                  const std::string& value) const {
  if (root == RegistryRoot::LocalMachine) return ProcessorValue(key, value);
  return Current().Read(WholeKey(root, key), value);
}

bool SettingsRegistry::Write(RegistryRoot root, const std::string& key, const std::string& value,
                             const std::string& text) {
  const std::string whole = WholeKey(root, key);
  if (root == RegistryRoot::LocalMachine || whole.empty()) return false;
  return Store({whole, value, text});
}

bool SettingsRegistry::DeleteKey(RegistryRoot root, const std::string& key) {
  const std::string whole = WholeKey(root, key);
  if (root == RegistryRoot::LocalMachine || whole.empty()) return false;
  return Store({whole, std::nullopt, {}});
}

std::optional<SettingsTree> SettingsRegistry::Load() const {
  QFile file(file_);
  if (!file.open(QIODevice::ReadOnly)) {
    return file.exists() ? std::nullopt : std::optional<SettingsTree>(SettingsTree());
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return SettingsTree(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
}

SettingsTree SettingsRegistry::Current() const {
  SettingsTree tree = Load().value_or(SettingsTree());
  for (const Change& change : waiting_) Apply(tree, change);
  return tree;
}

bool SettingsRegistry::Store(const Change& change) {
  SettingsTree now = Current();
  const bool stands = change.value && now.Read(change.key, *change.value) == change.text;
  // A value that stands already costs no writing, and a key that is not there no deleting.
  if (waiting_.empty() && stands) return true;
  if (!Apply(now, change)) return false;
  if (!stands) waiting_.push_back(change);

  QDir().mkpath(QFileInfo(file_).path());
  QLockFile lock(file_ + ".lock");
  if (!TakeLock(lock, kLockPatience)) return false;
  std::optional<SettingsTree> tree = Load();
  if (!tree) return false;
  for (const Change& waiting : waiting_) Apply(*tree, waiting);
  const int fault = Guarded([&] {
    ReplacingFile file(NativePath(file_.toStdString()));
    file.Append(tree->Text());
    file.Commit();
  });
  if (fault == 0) waiting_.clear();
  return fault == 0;
}

bool SettingsRegistry::Apply(SettingsTree& tree, const Change& change) {
  return change.value ? tree.Write(change.key, *change.value, change.text) : tree.DeleteKey(change.key);
}

}  // namespace veldrin
