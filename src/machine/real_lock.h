// Waiting for a lock that copies of the program share.
#pragma once

#include <QLockFile>

namespace veldrin {

/// Takes the lock, asking every few milliseconds so that nobody waits longer than the others; false when it
/// is still held after `patience` milliseconds, or cannot be made.
bool TakeLock(QLockFile& lock, int patience);

}  // namespace veldrin
