// Locks that copies of the program share.
#pragma once

#include <QLockFile>

namespace veldrin {

/// Takes the lock at once or not at all. Qt takes a lock for held while a process of its number and name
/// runs; by then that may be another copy of the program, this one even. The system knows who holds the file:
/// what nobody holds was left behind by a crash.
bool TryLock(QLockFile& lock);

/// Takes the lock, asking every few milliseconds so that nobody waits longer than the others; false when it
/// is still held after `patience` milliseconds, or cannot be made.
bool TakeLock(QLockFile& lock, int patience);

}  // namespace veldrin
