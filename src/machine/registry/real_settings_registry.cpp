#include "machine/registry/real_settings_registry.h"

#include "machine/files/real_made_folder.h"
#include "machine/files/real_path.h"
#include "machine/files/real_replacing_file.h"
#include "machine/real_lock.h"
#include "machine/real_processor.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <utility>

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

int LockFault(const QLockFile& lock) {
  switch (lock.error()) {
    case QLockFile::PermissionError:
      return kFaultPermissionDenied;
    case QLockFile::LockFailedError:
      return kFaultFileAlreadyOpen;
    default:
      return kFaultDiskFull;  // no room for the lock's own bytes
  }
}

void ReplaceFile(const QString& path, const std::string& bytes) {
  ReplacingFile file(NativePath(path.toStdString()));
  file.Append(bytes);
  file.Commit();
}

/// A file's bytes; nothing where none is there. Raises fault 70 where reading is denied and 75 where it
/// fails.
std::optional<std::string> BytesOf(const QString& path) {
  QFile file(path);
  if (!file.exists()) return std::nullopt;
  if (!file.open(QIODevice::ReadOnly)) {
    Raise(QFileInfo(path).isReadable() ? kFaultPathAccess : kFaultPermissionDenied);
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) Raise(kFaultPathAccess);
  return bytes.toStdString();
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

SettingsTree SettingsRegistry::Load() const {
  SettingsTree tree;
  Guarded([&] {
    if (const auto bytes = BytesOf(file_)) tree = SettingsTree(*bytes);
  });
  return tree;
}

SettingsTree SettingsRegistry::Current() const {
  SettingsTree tree = Load();
  for (const Change& change : waiting_) Apply(tree, change);
  return tree;
}

std::string SettingsRegistry::PlaceOf(const std::string& /*key*/) const {
  return file_.toStdString();
}

void SettingsRegistry::Check() {
  PutOnDisk();
}

bool SettingsRegistry::Store(const Change& change) {
  SettingsTree now = Current();
  const bool stands = change.value && now.Read(change.key, *change.value) == change.text;
  // A value that stands already costs no writing, and a key that is not there no deleting.
  if (waiting_.empty() && stands) return true;
  if (!Apply(now, change)) return false;
  if (!stands) waiting_.push_back(change);
  return PutOnDisk();
}

bool SettingsRegistry::PutOnDisk() {
  std::string copy;
  const int fault = Guarded([&] { Replace(copy); });
  if (fault == 0) {
    waiting_.clear();
    if (!copy.empty() && troubled) troubled({file_.toStdString(), 0, copy});
  } else if (troubled && !std::exchange(failureTold_, true)) {
    troubled({file_.toStdString(), fault, {}});
  }
  return fault == 0;
}

/// `copy` tells where a damaged file was put.
void SettingsRegistry::Replace(std::string& copy) const {
  MakeFolder(NativePath(QFileInfo(file_).path().toStdString()));
  QLockFile lock(file_ + ".lock");
  if (!TakeLock(lock, kLockPatience)) Raise(LockFault(lock));
  const std::optional<std::string> bytes = BytesOf(file_);
  SettingsTree tree = bytes ? SettingsTree(*bytes) : SettingsTree();
  // A file that could not be replaced is told before somebody relies on it.
  ReplacingFile file(NativePath(file_.toStdString()));
  if (waiting_.empty() && !tree.WasDamaged()) return;
  if (tree.WasDamaged()) copy = SetAside(*bytes);
  for (const Change& waiting : waiting_) Apply(tree, waiting);
  file.Append(tree.Text());
  file.Commit();
}

/// Keeps a damaged file's bytes beside it, once for the day, and tells where.
std::string SettingsRegistry::SetAside(const std::string& bytes) const {
  const QString day = file_ + ".damaged-" + QDate::currentDate().toString(Qt::ISODate);
  QString path = day;
  for (int another = 2; QFileInfo::exists(path); ++another) {
    if (BytesOf(path) == bytes) return path.toStdString();
    path = day + "-" + QString::number(another);
  }
  ReplaceFile(path, bytes);
  return path.toStdString();
}

bool SettingsRegistry::Apply(SettingsTree& tree, const Change& change) {
  return change.value ? tree.Write(change.key, *change.value, change.text) : tree.DeleteKey(change.key);
}

}  // namespace veldrin
