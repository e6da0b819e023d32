#include "machine/real_lock.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSysInfo>
#include <QThread>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace veldrin {

namespace {

constexpr int kBetween = 5;  // ms

#ifdef _WIN32

/// Who has the lock has the file open, and lets nobody delete it, wherever on the network that is.
bool RemoveUnheld(const QString& path, const QString& /*machine*/) {
  return QFile::remove(path);
}

#else

/// Who has the lock has the file locked for the system as well, from before its first byte on. Not every
/// network tells others of it.
bool RemoveUnheld(const QString& path, const QString& machine) {
  if (machine != QSysInfo::machineHostName()) return false;
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
  return RemoveUnheld(lock.fileName(), machine);
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
