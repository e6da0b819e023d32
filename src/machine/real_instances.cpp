#include "machine/real_instances.h"

#include "machine/real_lock.h"
#include "machine/runtime_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace veldrin {

namespace {

constexpr int kMostInstances = 1000;  // the numbers of working files end there as well
constexpr int kGatePatience = 2000;   // ms

/// A lock that no age makes stale, only the end of its process.
std::unique_ptr<QLockFile> NewLock(const QString& name) {
  auto lock = std::make_unique<QLockFile>(name);
  lock->setStaleLockTime(0);
  return lock;
}

/// Who counts would be counted: counting and taking go one at a time. Without the gate both go on.
class Gate {
 public:
  explicit Gate(const QString& locks) : lock_(NewLock(locks + "instances.lock")) {
    TakeLock(*lock_, kGatePatience);
  }

 private:
  std::unique_ptr<QLockFile> lock_;
};

}  // namespace

QString RealInstances::UsersLocks() {
  const QString session = UsersRuntimeFolder();
  if (!session.isEmpty()) return session + "/veldrin-";
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/veldrin";
  if (QDir().mkpath(folder) && QFileInfo(folder).isWritable()) return folder + "/";
  return QDir::tempPath() + "/veldrin-" + QFileInfo(QDir::homePath()).fileName() + "-";
}

RealInstances::RealInstances(QString locks) : locks_(std::move(locks)) {
  const Gate gate(locks_);
  for (int number = 0; number < kMostInstances; ++number) {
    auto lock = NewLock(LockName(number));
    if (TryLock(*lock)) {
      own_ = std::move(lock);
      number_ = number;
      return;
    }
    if (lock->error() != QLockFile::LockFailedError) return;
  }
}

int RealInstances::Others() const {
  const Gate gate(locks_);
  const QFileInfo pattern(locks_ + "instance-*.lock");
  int others = 0;
  for (const QFileInfo& found :
       pattern.dir().entryInfoList({pattern.fileName()}, QDir::Files | QDir::Hidden)) {
    if (number_ >= 0 && found.fileName() == QFileInfo(LockName(number_)).fileName()) continue;
    const auto lock = NewLock(found.filePath());
    // One that can be had was left behind by a crash, and goes.
    if (!TryLock(*lock) && lock->error() == QLockFile::LockFailedError) ++others;
  }
  return others;
}

QString RealInstances::LockName(int number) const {
  return locks_ + "instance-" + QString::number(number) + ".lock";
}

}  // namespace veldrin
