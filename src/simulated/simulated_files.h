// The file system of the simulated machine: drives A: (not ready), C: with the program's folders, and D:
// (empty), in memory, by the Windows rules. The places on the drives are simulated_disk.h's.
//
// Which fault comes, the first in this order: 52 a name that the system refuses; 71 the drive is not ready;
// 76 there is no such drive or folder; 53 there is no such file; 75 it is a folder; 70 the file or its folder
// is read-only; 55 the file is being written. A folder operation on an unknown drive raises 68.
#pragma once

#include "platform/files.h"
#include "simulated/simulated_disk.h"

#include <optional>

namespace veldrin {

class SimulatedFiles : public Files {
 public:
  SimulatedFiles();

  PathRules Rules() const override { return {}; }

  std::string ReadText(const std::string& path) override;
  std::unique_ptr<FileWriter> OpenForWriting(const std::string& path) override;
  void Delete(const std::string& path) override;
  void Respell(const std::string& path) override;
  std::int64_t Size(const std::string& path) override;

  bool FileExists(const std::string& path) const override;
  bool FolderExists(const std::string& path) const override;
  /// Every failure gives the empty text. An empty last part stands for all files.
  std::string FindFirst(const std::string& pattern) const override;
  std::string LongName(const std::string& path) const override;

  /// Raises what ResolveFolder raises.
  std::vector<std::string> FileNames(const std::string& folder, const std::string& pattern) const override;
  std::vector<std::string> FolderNames(const std::string& folder) const override;
  std::string ResolveFolder(const std::string& path) const override;

  std::vector<std::string> Drives() const override;
  std::string DriveOf(const std::string& path) const override;

  std::string CurrentFolder() const override;
  void SetCurrentFolder(const std::string& path) override;

  // What scripts do to the machine, and ask of it.

  /// Makes a folder and those above it; a drive that is not there or not ready comes with it. Raises fault 52
  /// for a bad name and 75 where a file is in the way.
  void AddFolder(const std::string& path);
  /// Makes a file of these bytes in the place of one that is there, and the folders above it. Raises the same
  /// faults, 75 where a folder has the name.
  void AddFile(const std::string& path, const std::string& bytes);
  /// The last part of `path` is also known by `name`. False when there is nothing at `path`.
  bool AddShortName(const std::string& path, const std::string& name);
  /// Takes away a file, or a folder with all that is in it, read-only or not. False when it is not there.
  bool Remove(const std::string& path);
  /// A file or a folder refuses writing; a folder also refuses new and fewer files in it, but not in the
  /// folders below. False when it is not there.
  bool SetReadOnly(const std::string& path, bool readOnly = true);
  /// Bytes of a file, those before the writing while it is being written; nothing when there is none.
  std::optional<std::string> Text(const std::string& path) const;
  /// Names of all files that match, in their order; the last part may hold "*" and "?".
  std::vector<std::string> Matches(const std::string& pattern) const;
  /// From now on every write fails with fault 61, or no longer.
  void SetDiskFull(bool full) { disk_->full = full; }

 private:
  DiskPlace PlaceOf(const std::string& path) const { return disk_->PlaceOf(CutPath(path)); }
  /// What is at `path`; null for nothing and for every failure.
  DiskEntry* Look(const std::string& path) const;
  DiskEntry& FileAt(const DiskPlace& place) const;
  DiskEntry& FolderAt(const DiskPlace& place) const;

  /// Shared with the writers, which may outlive this.
  std::shared_ptr<SimulatedDisk> disk_ = std::make_shared<SimulatedDisk>();
};

}  // namespace veldrin
