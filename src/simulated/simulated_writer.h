// A file of the simulated machine that is being written: what was written stands on the disk after Close.
#pragma once

#include "platform/files.h"
#include "simulated/simulated_disk.h"

#include <memory>
#include <string>

namespace veldrin {

/// Raises fault 55 while the file at `place` is being written.
void RefuseWhileOpen(SimulatedDisk& disk, const DiskPlace& place);

class SimulatedWriter : public FileWriter {
 public:
  /// Begins to write the file at `place`, which may be there or not. Raises fault 76 for a folder that is not
  /// there, 71 for its drive, 75 where a folder has the name, 70 for a read-only file or folder and 55 for a
  /// file that is being written.
  SimulatedWriter(std::shared_ptr<SimulatedDisk> disk, DiskPlace place);
  SimulatedWriter(const SimulatedWriter&) = delete;
  SimulatedWriter& operator=(const SimulatedWriter&) = delete;
  ~SimulatedWriter() override;

  /// Raises fault 61 on a full disk and 52 after Close.
  void Write(const std::string& text) override;
  /// Raises fault 61 after a write that did, 70 for what has become read-only and 75 where the folder is
  /// gone; the file then stays as it was. A second Close does nothing.
  void Close() override;

 private:
  /// The folder that takes the file.
  DiskEntry& WritableFolder();
  void LetGo();

  std::shared_ptr<SimulatedDisk> disk_;
  DiskPlace place_;
  std::string fullPath_;
  std::string text_;
  bool failed_ = false;
  bool open_ = false;
};

}  // namespace veldrin
