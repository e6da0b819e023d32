#include "simulated/simulated_files.h"

#include "runtime/fault.h"
#include "runtime/text.h"
#include "simulated/simulated_writer.h"

#include <algorithm>

namespace veldrin {

namespace {

/// The entry's own name or its short one matches, as the system looks at both.
bool Matches(const DiskEntry& entry, const std::string& pattern) {
  return MatchesPattern(entry.name, pattern) ||
         (!entry.shortName.empty() && MatchesPattern(entry.shortName, pattern));
}

std::vector<std::string> SplitPatterns(const std::string& patterns) {
  std::vector<std::string> split;
  std::size_t at = 0;
  while (at <= patterns.size()) {
    const std::size_t end = std::min(patterns.find(';', at), patterns.size());
    const std::string pattern = Trim(patterns.substr(at, end - at));
    if (!pattern.empty()) split.push_back(pattern);
    at = end + 1;
  }
  return split;
}

}  // namespace

SimulatedFiles::SimulatedFiles() {
  for (const char* folder : {"C:\\VELDRIN\\LIST", "C:\\VELDRIN\\DAT", "C:\\TEMP", "C:\\WINDOWS", "D:\\"}) {
    AddFolder(folder);
  }
  disk_->drives['A'].ready = false;
  disk_->drives['A'].root.isFolder = true;
  SetCurrentFolder("C:\\VELDRIN");
}

DiskEntry* SimulatedFiles::Look(const std::string& path) const {
  DiskEntry* entry = nullptr;
  Guarded([&] { entry = disk_->Find(PlaceOf(path)); });
  return entry;
}

DiskEntry& SimulatedFiles::FileAt(const DiskPlace& place) const {
  const DiskEntry& folder = disk_->FolderAround(place);
  if (place.parts.empty()) Raise(kFaultPathAccess);
  DiskEntry* const file = folder.Find(place.parts.back());
  if (file == nullptr) Raise(kFaultFileNotFound);
  if (file->isFolder) Raise(kFaultPathAccess);
  return *file;
}

DiskEntry& SimulatedFiles::FolderAt(const DiskPlace& place) const {
  if (disk_->drives.count(place.drive) == 0) Raise(kFaultDeviceUnavailable);
  DiskEntry* const folder = disk_->Find(place);
  if (folder == nullptr || !folder->isFolder) Raise(kFaultPathNotFound);
  return *folder;
}

std::string SimulatedFiles::ReadText(const std::string& path) {
  const DiskPlace place = PlaceOf(path);
  const DiskEntry& file = FileAt(place);
  RefuseWhileOpen(*disk_, place);
  return file.text;
}

std::unique_ptr<FileWriter> SimulatedFiles::OpenForWriting(const std::string& path) {
  return std::make_unique<SimulatedWriter>(disk_, PlaceOf(path));
}

void SimulatedFiles::Delete(const std::string& path) {
  const DiskPlace place = PlaceOf(path);
  const DiskEntry& file = FileAt(place);
  DiskEntry& folder = disk_->FolderAround(place);
  if (file.readOnly || folder.readOnly) Raise(kFaultPermissionDenied);
  RefuseWhileOpen(*disk_, place);
  folder.Remove(file);
}

void SimulatedFiles::Respell(const std::string& path) {
  const DiskPlace place = PlaceOf(path);
  const DiskEntry& file = FileAt(place);
  DiskEntry& folder = disk_->FolderAround(place);
  if (folder.readOnly) Raise(kFaultPermissionDenied);
  folder.Rename(file, place.parts.back());
}

std::int64_t SimulatedFiles::Size(const std::string& path) {
  return static_cast<std::int64_t>(FileAt(PlaceOf(path)).text.size());
}

bool SimulatedFiles::FileExists(const std::string& path) const {
  const DiskEntry* const entry = Look(path);
  return entry != nullptr && !entry->isFolder;
}

bool SimulatedFiles::FolderExists(const std::string& path) const {
  const DiskEntry* const entry = Look(path);
  return entry != nullptr && entry->isFolder;
}

std::string SimulatedFiles::FindFirst(const std::string& pattern) const {
  const std::vector<std::string> names = Matches(pattern);
  return names.empty() ? "" : names.front();
}

std::vector<std::string> SimulatedFiles::Matches(const std::string& pattern) const {
  std::vector<std::string> names;
  Guarded([&] {
    const SimulatedPattern cut = CutPattern(pattern);
    if (!cut.name.empty() && !HasWildcard(cut.name)) {
      const DiskEntry& file = FileAt(PlaceOf(pattern));
      names.push_back(file.name);
    } else {
      names = FileNames(cut.folder.empty() ? "." : cut.folder, cut.name.empty() ? "*" : cut.name);
    }
  });
  return names;
}

std::string SimulatedFiles::LongName(const std::string& path) const {
  const DiskEntry* const entry = Look(path);
  return entry == nullptr ? "" : entry->name;
}

std::vector<std::string> SimulatedFiles::FileNames(const std::string& folder,
                                                   const std::string& pattern) const {
  const std::vector<std::string> patterns = SplitPatterns(pattern);
  std::vector<std::string> names;
  for (const auto& [key, entry] : FolderAt(PlaceOf(folder)).entries) {
    const bool wanted =
        std::any_of(patterns.begin(), patterns.end(),
                    [&, &file = *entry](const std::string& one) { return veldrin::Matches(file, one); });
    if (!entry->isFolder && wanted) names.push_back(entry->name);
  }
  return names;
}

std::vector<std::string> SimulatedFiles::FolderNames(const std::string& folder) const {
  std::vector<std::string> names;
  for (const auto& [key, entry] : FolderAt(PlaceOf(folder)).entries) {
    if (entry->isFolder) names.push_back(entry->name);
  }
  return names;
}

std::string SimulatedFiles::ResolveFolder(const std::string& path) const {
  const DiskPlace place = PlaceOf(path);
  FolderAt(place);
  return disk_->Spell(place);
}

std::vector<std::string> SimulatedFiles::Drives() const {
  std::vector<std::string> names;
  for (const auto& [letter, drive] : disk_->drives) names.push_back(std::string(1, letter) + ":");
  return names;
}

std::string SimulatedFiles::DriveOf(const std::string& path) const {
  char letter = 0;
  if (HasDrive(path)) {
    letter = CutPath(path.substr(0, 2)).drive;
  } else if (!path.empty() && !path.starts_with("\\\\") && !path.starts_with("//")) {
    letter = disk_->currentDrive;
  }
  return disk_->drives.count(letter) == 0 ? "" : std::string(1, letter) + ":";
}

std::string SimulatedFiles::CurrentFolder() const {
  const char letter = disk_->currentDrive;
  return disk_->Spell({letter, disk_->drives[letter].currentFolder});
}

void SimulatedFiles::SetCurrentFolder(const std::string& path) {
  const DiskPlace place = PlaceOf(path);
  FolderAt(place);
  // Kept in the spelling of the disk, so that it still reads so when the folder is gone.
  const SimulatedPath spelled = CutPath(disk_->Spell(place));
  disk_->drives[place.drive].currentFolder = spelled.parts;
  disk_->currentDrive = place.drive;
}

void SimulatedFiles::AddFolder(const std::string& path) {
  disk_->MakeFolder(PlaceOf(path));
}

void SimulatedFiles::AddFile(const std::string& path, const std::string& bytes) {
  DiskPlace place = PlaceOf(path);
  if (place.parts.empty()) Raise(kFaultPathAccess);
  const std::string name = place.parts.back();
  place.parts.pop_back();
  DiskEntry& folder = disk_->MakeFolder(place);
  if (const DiskEntry* const before = folder.Find(name)) {
    if (before->isFolder) Raise(kFaultPathAccess);
    folder.Remove(*before);
  }
  folder.Put(name, false).text = bytes;
}

bool SimulatedFiles::AddShortName(const std::string& path, const std::string& name) {
  DiskEntry* const entry = Look(path);
  if (entry == nullptr || entry->name.empty()) return false;
  entry->shortName = name;
  return true;
}

bool SimulatedFiles::Remove(const std::string& path) {
  const DiskEntry* const entry = Look(path);
  if (entry == nullptr || entry->name.empty()) return false;
  disk_->FolderAround(PlaceOf(path)).Remove(*entry);
  return true;
}

bool SimulatedFiles::SetReadOnly(const std::string& path, bool readOnly) {
  DiskEntry* const entry = Look(path);
  if (entry == nullptr) return false;
  entry->readOnly = readOnly;
  return true;
}

std::optional<std::string> SimulatedFiles::Text(const std::string& path) const {
  const DiskEntry* const entry = Look(path);
  if (entry == nullptr || entry->isFolder) return std::nullopt;
  return entry->text;
}

}  // namespace veldrin
