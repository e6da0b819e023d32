#include "simulated/simulated_writer.h"

#include "runtime/fault.h"
#include "runtime/text.h"

#include <utility>

namespace veldrin {

void RefuseWhileOpen(SimulatedDisk& disk, const DiskPlace& place) {
  if (disk.open.count(LowerCase(disk.Spell(place))) != 0) Raise(kFaultFileAlreadyOpen);
}

SimulatedWriter::SimulatedWriter(std::shared_ptr<SimulatedDisk> disk, DiskPlace place)
    : disk_(std::move(disk)), place_(std::move(place)) {
  WritableFolder();
  RefuseWhileOpen(*disk_, place_);
  fullPath_ = LowerCase(disk_->Spell(place_));
  disk_->open.insert(fullPath_);
  open_ = true;
}

SimulatedWriter::~SimulatedWriter() {
  LetGo();
}

void SimulatedWriter::Write(const std::string& text) {
  if (!open_) Raise(kFaultBadFileName);
  if (disk_->full) {
    failed_ = true;
    Raise(kFaultDiskFull);
  }
  text_ += text;
}

void SimulatedWriter::Close() {
  if (!open_) return;
  LetGo();
  if (failed_) Raise(kFaultDiskFull);
  DiskEntry* folder = nullptr;
  const int fault = Guarded([&] { folder = &WritableFolder(); });
  if (fault != 0) Raise(fault == kFaultPermissionDenied ? fault : static_cast<int>(kFaultPathAccess));
  DiskEntry* file = folder->Find(place_.parts.back());
  if (file == nullptr) file = &folder->Put(place_.parts.back(), false);
  file->text = text_;
}

DiskEntry& SimulatedWriter::WritableFolder() {
  DiskEntry& folder = disk_->FolderAround(place_);
  if (place_.parts.empty()) Raise(kFaultPathAccess);
  const DiskEntry* const file = folder.Find(place_.parts.back());
  if (file != nullptr && file->isFolder) Raise(kFaultPathAccess);
  if (folder.readOnly || (file != nullptr && file->readOnly)) Raise(kFaultPermissionDenied);
  return folder;
}

void SimulatedWriter::LetGo() {
  if (open_) disk_->open.erase(fullPath_);
  open_ = false;
}

}  // namespace veldrin
