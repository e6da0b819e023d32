// Failures of the system's files as the run-time's fault numbers.
#pragma once

#include <system_error>

namespace veldrin {

/// What was being done when the system failed.
enum class FileTask { Read, Write, UseFolder };

/// The fault number for a failure: 52 a name that the system refuses, 53 or 76 where nothing is, 61 no room,
/// 68 no such device, 70 denied, 71 a drive that does not answer, 75 everything else. Raises nothing.
int FaultFor(const std::error_code& failure, FileTask task);

}  // namespace veldrin
