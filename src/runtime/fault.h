// Faults of the run-time and how they travel.
//
// A RuntimeFault is raised by conversions, divisions, subscripts and files. A guarded routine wraps each of
// its statements in Guarded(), so that the failing one is skipped and the next one runs; the file opener has
// a handler of its own; anywhere else the fault reaches the event boundary, which shows the error box and
// ends the program. EndOfProgram ends it at once and passes through every nested loop. Nothing else is
// thrown from one unit to another; what the standard library throws ends the program as a fault does.
#pragma once

#include <utility>

namespace veldrin {

/// Numbers of the faults that the program's rules know by name.
enum FaultNumber : int {
  kFaultBadCall = 5,
  kFaultOverflow = 6,
  kFaultOutOfMemory = 7,
  kFaultSubscript = 9,
  kFaultDivisionByZero = 11,
  kFaultTypeMismatch = 13,
  kFaultInternal = 51,
  kFaultBadFileName = 52,
  kFaultFileNotFound = 53,
  kFaultFileAlreadyOpen = 55,
  kFaultDiskFull = 61,
  kFaultPastEnd = 62,
  kFaultDeviceUnavailable = 68,
  kFaultPermissionDenied = 70,
  kFaultDriveNotReady = 71,
  kFaultPathAccess = 75,
  kFaultPathNotFound = 76,
  kFaultNoControlElement = 340,
  kFaultBadProperty = 380,
};

/// A fault of the run-time, told by its number alone.
struct RuntimeFault {
  int number;
};

/// The program ends here: nothing after the throwing statement runs.
struct EndOfProgram {};

/// Raises the fault with this number.
[[noreturn]] inline void Raise(int number) {
  throw RuntimeFault{number};
}

/// Runs one statement of a guarded routine: a fault in it skips the rest of the statement and is forgotten.
/// Returns the fault's number, 0 when there was none.
template <class Statement>
int Guarded(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
    return 0;
  } catch (const RuntimeFault& fault) {
    return fault.number;
  }
}

}  // namespace veldrin
