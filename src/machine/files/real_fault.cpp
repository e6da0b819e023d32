#include "machine/files/real_fault.h"

#include "runtime/fault.h"

#include <cerrno>

namespace veldrin {

namespace {

/// The fault for what only one family of systems tells; 0 for the rest.
int SystemFault(const std::error_code& failure) {
#ifdef _WIN32
  if (failure.category() != std::system_category()) return 0;
  switch (failure.value()) {
    case 3:    // ERROR_PATH_NOT_FOUND
    case 53:   // ERROR_BAD_NETPATH
    case 67:   // ERROR_BAD_NET_NAME
    case 267:  // ERROR_DIRECTORY
      return kFaultPathNotFound;
    case 15:  // ERROR_INVALID_DRIVE
      return kFaultDeviceUnavailable;
    case 19:  // ERROR_WRITE_PROTECT
    case 32:  // ERROR_SHARING_VIOLATION
    case 33:  // ERROR_LOCK_VIOLATION
      return kFaultPermissionDenied;
    case 21:    // ERROR_NOT_READY
    case 1005:  // ERROR_UNRECOGNIZED_VOLUME
    case 1112:  // ERROR_NO_MEDIA_IN_DRIVE
      return kFaultDriveNotReady;
    case 39:   // ERROR_HANDLE_DISK_FULL
    case 112:  // ERROR_DISK_FULL
      return kFaultDiskFull;
    case 123:  // ERROR_INVALID_NAME
    case 161:  // ERROR_BAD_PATHNAME
    case 206:  // ERROR_FILENAME_EXCED_RANGE
      return kFaultBadFileName;
    default:
      return 0;
  }
#else
  switch (failure.value()) {
    case EDQUOT:
      return kFaultDiskFull;
    case EIO:
    case ESTALE:
    case ENOTCONN:
#ifdef ENOMEDIUM
    case ENOMEDIUM:
#endif
      return kFaultDriveNotReady;
    default:
      return 0;
  }
#endif
}

}  // namespace

int FaultFor(const std::error_code& failure, FileTask task) {
  if (const int fault = SystemFault(failure)) return fault;
  if (failure == std::errc::no_such_file_or_directory) {
    return task == FileTask::Read ? kFaultFileNotFound : kFaultPathNotFound;
  }
  if (failure == std::errc::not_a_directory) return kFaultPathNotFound;
  if (failure == std::errc::filename_too_long || failure == std::errc::invalid_argument ||
      failure == std::errc::illegal_byte_sequence) {
    return kFaultBadFileName;
  }
  if (failure == std::errc::no_space_on_device || failure == std::errc::file_too_large) return kFaultDiskFull;
  if (failure == std::errc::no_such_device || failure == std::errc::no_such_device_or_address) {
    return kFaultDeviceUnavailable;
  }
  const bool denied = failure == std::errc::permission_denied ||
                      failure == std::errc::operation_not_permitted ||
                      failure == std::errc::read_only_file_system ||
                      failure == std::errc::device_or_resource_busy || failure == std::errc::text_file_busy;
  return denied ? kFaultPermissionDenied : kFaultPathAccess;
}

}  // namespace veldrin
