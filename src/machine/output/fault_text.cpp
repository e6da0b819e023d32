#include "machine/output/fault_text.h"

#include "runtime/fault.h"

namespace veldrin {

std::string FaultText(int number) {
  switch (number) {
    case kFaultBadCall:
      return "Invalid procedure call or argument";
    case kFaultOverflow:
      return "Overflow";
    case kFaultOutOfMemory:
      return "Out of memory";
    case kFaultSubscript:
      return "Subscript out of range";
    case kFaultDivisionByZero:
      return "Division by zero";
    case kFaultTypeMismatch:
      return "Type mismatch";
    case kFaultInternal:
      return "Internal error";
    case kFaultBadFileName:
      return "Bad file name or number";
    case kFaultFileNotFound:
      return "File not found";
    case kFaultFileAlreadyOpen:
      return "File already open";
    case kFaultDiskFull:
      return "Disk full";
    case kFaultPastEnd:
      return "Input past end of file";
    case kFaultDeviceUnavailable:
      return "Device unavailable";
    case kFaultPermissionDenied:
      return "Permission denied";
    case kFaultDriveNotReady:
      return "Disk not ready";
    case kFaultPathAccess:
      return "Path/File access error";
    case kFaultPathNotFound:
      return "Path not found";
    case kFaultNoControlElement:
      return "Control array element does not exist";
    case kFaultBadProperty:
      return "Invalid property value";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace veldrin
