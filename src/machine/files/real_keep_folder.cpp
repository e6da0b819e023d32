#include "machine/files/real_keep_folder.h"

#include "machine/files/real_made_folder.h"
#include "machine/files/real_path.h"
#include "machine/files/real_replacing_file.h"
#include "machine/real_lock.h"
#include "runtime/fault.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <utility>

namespace veldrin {

namespace {

constexpr int kHexDigits = 8;
constexpr int kBase = 16;

struct LockClaim : KeepClaim {
  explicit LockClaim(const QString& path) : lock(path) { lock.setStaleLockTime(0); }
  QLockFile lock;
};

bool IsPlain(const std::string& name) {
  return !name.empty() && name.find_first_of("/\\:") == std::string::npos && name.front() != '.';
}

}  // namespace

QString RealKeepFolder::UsersFolder() {
#ifdef _WIN32
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/veldrin/kept";
#else
  const QString state = qEnvironmentVariable("XDG_STATE_HOME");
  // A path that is not absolute is to be passed over.
  return (QDir::isAbsolutePath(state) ? state : QDir::homePath() + "/.local/state") + "/veldrin";
#endif
}

RealKeepFolder::RealKeepFolder(QString folder) : folder_(std::move(folder)) {}

std::vector<std::string> RealKeepFolder::KeptNames() const {
  std::vector<std::string> names;
  for (const QString& name : QDir(folder_).entryList({"*.kept"}, QDir::Files, QDir::Name)) {
    names.push_back(name.toStdString());
  }
  return names;
}

std::string RealKeepFolder::NewId() {
  const QString time = QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss-zzz-");
  const auto chance = QString::number(QRandomGenerator::system()->generate(), kBase);
  return (time + chance.rightJustified(kHexDigits, '0')).toStdString();
}

std::string RealKeepFolder::Now() const {
  return QDateTime::currentDateTime().toString("yyyy-MM-ddTHH:mm:ss").toStdString();
}

std::unique_ptr<KeepClaim> RealKeepFolder::Claim(const std::string& id) {
  if (!IsPlain(id) || Guarded([&] { MakeFolder(NativePath(folder_.toStdString())); }) != 0) return nullptr;
  auto claim = std::make_unique<LockClaim>(folder_ + "/" + QString::fromStdString(id) + ".lock");
  if (!TryLock(claim->lock)) return nullptr;
  return claim;
}

std::optional<std::string> RealKeepFolder::Read(const std::string& name) const {
  QFile file(QString::fromStdString(PathOf(name)));
  if (!IsPlain(name) || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return std::nullopt;
  return bytes.toStdString();
}

void RealKeepFolder::Replace(const std::string& name, const std::string& bytes) {
  if (!IsPlain(name)) Raise(kFaultBadFileName);
  MakeFolder(NativePath(folder_.toStdString()));
  ReplacingFile file(NativePath(PathOf(name)));
  file.Append(bytes);
  file.Commit();
}

bool RealKeepFolder::Remove(const std::string& name) {
  if (!IsPlain(name)) return true;
  const QString path = QString::fromStdString(PathOf(name));
  return QFile::remove(path) || !QFile::exists(path);
}

std::string RealKeepFolder::PathOf(const std::string& name) const {
  return QDir::toNativeSeparators(folder_ + "/").toStdString() + name;
}

}  // namespace veldrin
