#include "machine/real_lock.h"

#include <QElapsedTimer>
#include <QThread>

namespace veldrin {

namespace {

constexpr int kBetween = 5;  // ms

}  // namespace

bool TakeLock(QLockFile& lock, int patience) {
  QElapsedTimer timer;
  timer.start();
  while (!lock.tryLock(0)) {
    if (lock.error() != QLockFile::LockFailedError || timer.elapsed() >= patience) return false;
    QThread::msleep(kBetween);
  }
  return true;
}

}  // namespace veldrin
