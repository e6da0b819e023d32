#include "machine/files/real_made_folder.h"

#include "machine/files/real_fault.h"
#include "platform/disk.h"
#include "runtime/fault.h"

#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace veldrin {

namespace fs = std::filesystem;

void MakeFolder(const fs::path& folder) {
  std::error_code failure;
  if (folder.empty() || IsFolderOnDisk(folder)) return;
  const fs::path above = folder.parent_path();
  if (above != folder) MakeFolder(above);
  MakeFolderOnDisk(folder, failure);
  if (failure) Raise(FaultFor(failure, FileTask::Write));
  KeepNames(above);
}

#ifdef _WIN32

void KeepNames(const fs::path& /*folder*/) {}

#else

void KeepNames(const fs::path& folder) {
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return;
  fsync(opened);
  close(opened);
}

#endif

}  // namespace veldrin
