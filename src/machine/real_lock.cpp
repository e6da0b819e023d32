#include "machine/real_lock.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QThread>

#ifndef _WIN32
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

#include <optional>

namespace veldrin {

namespace {

constexpr int kBetween = 5;  // ms

#ifdef _WIN32

/// Who has the lock has the file open, and lets nobody delete it, wherever on the network that is.
bool RemoveUnheld(const QString& path, const QString& /*machine*/, qint64 /*process*/) {
  return QFile::remove(path);
}

#else

/// When a process began, in ms since 1970; nothing where the system does not tell.
std::optional<qint64> BeginOf(qint64 process) {
  constexpr int kBegin = 19;  // of the fields behind the program's name
  QFile file("/proc/" + QString::number(process) + "/stat");
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray line = file.readAll();
  const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
  timespec sinceBoot = {};
  const long ticks = sysconf(_SC_CLK_TCK);
  if (fields.size() <= kBegin || ticks <= 0 || clock_gettime(CLOCK_BOOTTIME, &sinceBoot) != 0)
    return std::nullopt;
  const qint64 boot =
      QDateTime::currentMSecsSinceEpoch() - sinceBoot.tv_sec * qint64{1000} - sinceBoot.tv_nsec / 1000000;
  return boot + fields[kBegin].toLongLong() * 1000 / ticks;
}

/// Who has the lock has the file locked for the system as well, from before its first byte on. Not every
/// network tells others of it. Who gives a lock back lets the file go first and then deletes whatever bears
/// its name: only what was written before the process of its number began is nobody's on the way to be
/// deleted.
bool RemoveUnheld(const QString& path, const QString& machine, qint64 process) {
  if (machine != QSysInfo::machineHostName()) return false;
  const qint64 written = QFileInfo(path).lastModified().toMSecsSinceEpoch();
  const std::optional<qint64> begin = BeginOf(process);
  if (!begin || *begin <= written) return false;
  const QByteArray name = QFile::encodeName(path);
  const int file = open(name.constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  char byte = 0;
  const bool unheld = flock(file, LOCK_EX | LOCK_NB) == 0 && read(file, &byte, 1) == 1;
  const bool removed = unheld && unlink(name.constData()) == 0;
  close(file);
  return removed;
}

#endif

/// Takes away what a crash left behind. False where it is held, or nobody can tell.
bool RemoveAbandoned(const QLockFile& lock) {
  qint64 process = 0;
  QString machine;
  QString program;
  if (!lock.getLockInfo(&process, &machine, &program)) return false;
  return RemoveUnheld(lock.fileName(), machine, process);
}

}  // namespace

bool TryLock(QLockFile& lock) {
  if (lock.tryLock(0)) return true;
  return lock.error() == QLockFile::LockFailedError && RemoveAbandoned(lock) && lock.tryLock(0);
}

bool TakeLock(QLockFile& lock, int patience) {
  QElapsedTimer timer;
  timer.start();
  while (!TryLock(lock)) {
    if (lock.error() != QLockFile::LockFailedError || timer.elapsed() >= patience) return false;
    QThread::msleep(kBetween);
  }
  return true;
}

}  // namespace veldrin
